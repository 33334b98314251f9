#include "host/net/feed/feedreader.h"

#include "framework/abi/textformats.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "host/net/feed/feedparser.h"
#include "host/net/feed/feedrecord.h"

#include <QStringDecoder>

#include <algorithm>
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

Ref<MemoryStream> streamOf(std::string_view bytes) {
    auto stream = make<MemoryStream>();
    stream->write(bytes);
    rewind(*stream);
    return stream;
}

/// All bytes at once: a character that is cut off at the end is a fault.
constexpr auto kWhole = QStringDecoder::Flag::Stateless;

/// The value behind `name` and "=", with or without quotes.
std::string valueBehind(std::string_view text, std::string_view name) {
    const auto found = text.find(name);
    const auto equals = found == std::string_view::npos ? found : text.find('=', found + name.size());
    if (equals == std::string_view::npos ||
        !trim(text.substr(found + name.size(), equals - found - name.size())).empty()) {
        return {};
    }
    text = trim(text.substr(equals + 1));
    if (!text.empty() && (text.front() == '"' || text.front() == '\'')) {
        const char quote = text.front();
        text.remove_prefix(1);
        return std::string(text.substr(0, text.find(quote)));
    }
    return std::string(text.substr(0, text.find_first_of("; \t")));
}

/// The XML declaration at the start; empty when there is none.
std::string_view declarationOf(std::string_view text) {
    static constexpr std::size_t kLongest = 1024;
    const auto end = text.substr(0, kLongest).find("?>");
    const bool isDeclaration =
        text.starts_with("<?xml") && end != std::string_view::npos && trim(text.substr(5, 1)).empty();
    return isDeclaration ? text.substr(0, end + 2) : std::string_view();
}

QStringDecoder decoderFor(std::string_view bytes, std::string_view mimeType) {
    const QByteArrayView data(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (const auto marked = QStringConverter::encodingForData(data)) {
        return QStringDecoder(*marked, kWhole);
    }
    if (const std::string declared = valueBehind(asciiLower(mimeType), "charset"); !declared.empty()) {
        return QStringDecoder(declared.c_str(), kWhole);
    }
    if (const auto guessed = QStringConverter::encodingForData(data, u'<')) {
        return QStringDecoder(*guessed, kWhole);
    }
    const std::string declared = valueBehind(declarationOf(bytes), "encoding");
    return declared.empty() ? QStringDecoder(QStringDecoder::Utf8, kWhole)
                            : QStringDecoder(declared.c_str(), kWhole);
}

} // namespace

Result readFeed(IStream& stream, Text location, Text mimeType, IFeed** out) {
    std::string bytes;
    if (const Result result = readBytes(stream, bytes); result != kOk) {
        return result;
    }
    const auto document = utf8Document(bytes, view(mimeType));
    if (!document) {
        return kInvalidArgument;
    }
    const auto parser = make<FeedParser>(resolved({}, view(location)));
    // The parser refuses document types, and documents that are too deep or ill-formed.
    if (XBRXmlParse(streamOf(*document).get(), parser.get()) != kOk || !parser->isFeed()) {
        return kInvalidArgument;
    }
    giveFeed(parser->take(), out);
    return kOk;
}

std::optional<std::string> utf8Document(std::string_view bytes, std::string_view mimeType) {
    QStringDecoder decoder = decoderFor(bytes, mimeType);
    if (!decoder.isValid()) {
        return std::nullopt;
    }
    const QString text = decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (decoder.hasError() || !text.isValidUtf16()) {
        return std::nullopt;
    }
    std::string document = text.toStdString();
    document.erase(0, declarationOf(document).size());
    return document;
}

} // namespace xbr::host
