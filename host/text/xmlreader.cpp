#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "host/base/xmlscan.h"
#include "host/text/streams.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <optional>

namespace xbr::host {

namespace {

constexpr std::uint64_t kMaximumSize = std::uint64_t{16} << 20U;

/// The document as text: UTF-8 or UTF-16, which is what XML 1.0 asks of every reader (2.2, 4.3.3).
std::optional<QString> decoded(const std::string& bytes) {
    const QByteArrayView data(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QStringDecoder decoder(QStringDecoder::encodingForData(data, u'<').value_or(QStringDecoder::Utf8));
    QString text = decoder.decode(data);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

bool isUnicode(QStringView encoding) {
    return encoding.isEmpty() || encoding.startsWith(u"UTF-", Qt::CaseInsensitive) ||
           encoding.compare(u"US-ASCII", Qt::CaseInsensitive) == 0;
}

class XmlReader {
public:
    XmlReader(const QString& document, IXmlHandler& handler) : m_handler(handler), m_reader(document) {
        // Names are handed out as written; a prefix that was not declared is the handler's affair.
        m_reader.setNamespaceProcessing(false);
    }

    bool read() {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (!handOut()) {
                return false;
            }
        }
        return !m_reader.hasError();
    }

private:
    /// False when the document is to be refused.
    bool handOut() {
        switch (m_reader.tokenType()) {
        case QXmlStreamReader::StartDocument:
            return isUnicode(m_reader.documentEncoding());
        case QXmlStreamReader::DTD:
            return false; // entities could grow without limit
        case QXmlStreamReader::StartElement:
            return startElement();
        case QXmlStreamReader::EndElement:
            --m_depth;
            m_handler.endElement(toText(m_reader.qualifiedName().toUtf8().toStdString()));
            return true;
        case QXmlStreamReader::Characters:
            m_handler.characters(toText(m_reader.text().toUtf8().toStdString()));
            return true;
        default:
            return true;
        }
    }

    bool startElement() {
        if (++m_depth > kMaximumXmlDepth) {
            return false;
        }
        Ref<IStringDictionary> attributes;
        XBRCreateStringDictionary(attributes.out());
        for (const auto& attribute : m_reader.attributes()) {
            const auto name = attribute.qualifiedName().toUtf8().toStdString();
            const auto value = attribute.value().toUtf8().toStdString();
            attributes->append(toText(name), toText(value));
        }
        const auto name = m_reader.qualifiedName().toUtf8().toStdString();
        m_handler.startElement(toText(name), attributes.get());
        return true;
    }

    IXmlHandler& m_handler;
    QXmlStreamReader m_reader;
    int m_depth = 0;
};

} // namespace

} // namespace xbr::host

xbr::Result XBRXmlParse(xbr::IStream* stream, xbr::IXmlHandler* handler) noexcept {
    using namespace xbr;
    if (!stream || !handler) {
        return kInvalidArgument;
    }
    // Read as a whole: fed in pieces, the parser starts each long comment again with every piece.
    const auto contents = host::readUpTo(*stream, host::kMaximumSize);
    if (contents.result != kOk) {
        return contents.result;
    }
    const auto document = host::decoded(contents.bytes);
    const bool isRead =
        document && !host::hasTooManyAttributes(*document) && host::XmlReader(*document, *handler).read();
    return isRead ? kOk : kInvalidArgument;
}
