#include "host/net/feed/feedreader.h"

#include "framework/support/objects/text.h"
#include "host/base/qttext.h"
#include "host/net/feed/feedbuilder.h"
#include "host/net/feed/feedparser.h"
#include "host/net/feed/feedrecord.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace xbr::host {

namespace {

constexpr std::uint64_t kMaximumSize = std::uint64_t{8} << 20U;

/// Reads to the end. kInvalidArgument when that is farther than a feed is long.
Result readBytes(IStream& stream, std::string& bytes) {
    std::vector<char> piece(std::size_t{64} << 10U);
    for (;;) {
        std::uint64_t done = 0;
        if (stream.read(piece.data(), piece.size(), &done) != kOk) {
            return kUnexpected;
        }
        bytes.append(piece.data(), done);
        if (bytes.size() > kMaximumSize) {
            return kInvalidArgument;
        }
        if (done < piece.size()) {
            return kOk;
        }
    }
}

/// All bytes at once: a character that is cut off at the end is a fault.
constexpr auto kWhole = QStringDecoder::Flag::Stateless;

/// The parameter "charset" of a media type; empty when there is none.
QByteArray charsetOf(std::string_view mimeType) {
    static const QRegularExpression kCharset(QStringLiteral("charset\\s*=\\s*[\"']?([^\\s;\"']+)"),
                                             QRegularExpression::CaseInsensitiveOption);
    return kCharset.match(toQString(mimeType)).captured(1).toUtf8();
}

/// What the XML declaration says; empty when there is none.
QByteArray declaredEncoding(QByteArrayView bytes) {
    static constexpr qsizetype kLongest = 1024;
    QXmlStreamReader reader(QString::fromLatin1(bytes.first(std::min(bytes.size(), kLongest))));
    reader.readNext();
    return reader.documentEncoding().toUtf8();
}

/// The encoding is told by a byte order mark, else by the media type (RFC 7303, section 3), else by the
/// declaration, and is UTF-8 or UTF-16 otherwise.
QStringDecoder decoderFor(QByteArrayView bytes, std::string_view mimeType) {
    if (const auto marked = QStringConverter::encodingForData(bytes)) {
        return QStringDecoder(*marked, kWhole);
    }
    const auto guessed = QStringConverter::encodingForData(bytes, u'<');
    const QByteArray charset = charsetOf(mimeType);
    if (charset.isEmpty() && guessed) {
        return QStringDecoder(*guessed, kWhole);
    }
    const QByteArray name = charset.isEmpty() ? declaredEncoding(bytes) : charset;
    return name.isEmpty() ? QStringDecoder(QStringDecoder::Utf8, kWhole) : QStringDecoder(name, kWhole);
}

/// The document as text; nothing when the encoding is unknown or the bytes are not of it.
std::optional<QString> decoded(std::string_view text, std::string_view mimeType) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    QStringDecoder decoder = decoderFor(bytes, mimeType);
    if (!decoder.isValid()) {
        return std::nullopt;
    }
    QString document = decoder.decode(bytes);
    return decoder.hasError() || !document.isValidUtf16() ? std::nullopt : std::optional(std::move(document));
}

} // namespace

Result readFeed(IStream& stream, Text location, Text mimeType, IFeed** out) {
    std::string bytes;
    if (const Result result = readBytes(stream, bytes); result != kOk) {
        return result;
    }
    const auto document = decoded(bytes, view(mimeType));
    auto feed = document ? parseFeed(*document, resolved({}, view(location))) : std::nullopt;
    if (!feed) {
        return kInvalidArgument;
    }
    giveFeed(*std::move(feed), out);
    return kOk;
}

} // namespace xbr::host
