#include "host/net/feed/feedparser.h"

#include "framework/support/objects/text.h"
#include "host/base/xmlscan.h"
#include "host/net/feed/feedbuilder.h"
#include "host/net/feed/plaintext.h"

#include <QXmlStreamReader>

#include <string>
#include <vector>

namespace xbr::host {

namespace {

constexpr QStringView kAtomSpace = u"http://www.w3.org/2005/Atom";
constexpr QStringView kXhtmlSpace = u"http://www.w3.org/1999/xhtml";
constexpr QStringView kXmlSpace = u"http://www.w3.org/XML/1998/namespace";

/// What each of Atom's elements is, by what it is in. Those of other vocabularies, and those in the wrong
/// place, are skipped with all that is in them.
struct Row {
    FeedPart parent;
    QStringView name;
    FeedPart part;
};

constexpr Row kRows[] = {
    {FeedPart::kOutside, u"feed", FeedPart::kFeed},
    {FeedPart::kFeed, u"title", FeedPart::kFeedTitle},
    {FeedPart::kFeed, u"entry", FeedPart::kEntry},
    {FeedPart::kEntry, u"title", FeedPart::kTitle},
    {FeedPart::kEntry, u"summary", FeedPart::kSummary},
    {FeedPart::kEntry, u"content", FeedPart::kContent},
    {FeedPart::kEntry, u"published", FeedPart::kPublished},
    {FeedPart::kEntry, u"updated", FeedPart::kUpdated},
    {FeedPart::kEntry, u"link", FeedPart::kLink},
    {FeedPart::kEntry, u"category", FeedPart::kCategory},
};

/// The forms of Atom's text constructs (RFC 4287, section 3.1.1) and of its content (4.1.3).
enum class TextForm { kText, kHtml, kXhtml, kPreformatted, kNotText };

TextForm formOf(const FeedAttributes& attributes) {
    std::string type = asciiLower(trim(attributeOf(attributes, "type")));
    type = std::string(trim(std::string_view(type).substr(0, type.find(';'))));
    if (!attributeOf(attributes, "src").empty()) {
        return TextForm::kNotText;
    }
    if (type.empty() || type == "text") {
        return TextForm::kText;
    }
    if (type == "html" || type == "text/html") {
        return TextForm::kHtml;
    }
    if (type == "xhtml" || type == "application/xhtml+xml") {
        return TextForm::kXhtml;
    }
    const bool isXml = type.ends_with("+xml") || type.ends_with("/xml");
    return type.starts_with("text/") && !isXml ? TextForm::kPreformatted : TextForm::kNotText;
}

/// Elements whose text counts in one of the forms above.
bool isTextConstruct(FeedPart part) {
    return part == FeedPart::kFeedTitle || part == FeedPart::kTitle || part == FeedPart::kSummary ||
           part == FeedPart::kContent;
}

class FeedParser {
public:
    explicit FeedParser(QUrl location) : m_location(std::move(location)) {}

    bool read(const QString& document);
    FeedRecord take() { return m_builder.take(); }

private:
    struct Open {
        FeedPart part = FeedPart::kSkipped;
        FeedAttributes attributes;
        QUrl base;
        std::string name; ///< of XHTML
    };

    void open(const QXmlStreamReader& reader);
    void close();
    void addText(std::string_view text);
    FeedPart classify(const QXmlStreamReader& reader) const;
    std::string takeText(const Open& ending);

    QUrl m_location;
    std::vector<Open> m_open;
    std::string m_characters; ///< of the element that is read
    PlainText m_markup;       ///< of the XHTML that is read
    FeedBuilder m_builder;
    bool m_isFeed = false;
};

bool FeedParser::read(const QString& document) {
    if (hasTooManyAttributes(document)) {
        return false;
    }
    QXmlStreamReader reader(document);
    while (nextToken(reader) && m_open.size() <= kMaximumXmlDepth) {
        if (reader.isStartElement()) {
            open(reader);
        } else if (reader.isEndElement()) {
            close();
        } else if (reader.isCharacters()) {
            addText(reader.text().toUtf8().toStdString());
        }
    }
    return !reader.hasError() && reader.atEnd() && m_isFeed && !m_builder.isOverLimits();
}

/// An element's own attributes by local name, and those of other vocabularies where it has none of that name;
/// `base` becomes what xml:base says.
FeedAttributes readAttributes(const QXmlStreamAttributes& attributes, QUrl& base) {
    FeedAttributes result;
    for (const QXmlStreamAttribute& attribute : attributes) {
        const std::string name = attribute.name().toUtf8().toStdString();
        std::string value = attribute.value().toUtf8().toStdString();
        if (attribute.namespaceUri().isEmpty()) {
            setAttribute(result, name, std::move(value));
        } else if (attribute.namespaceUri() != kXmlSpace) {
            if (attributeOf(result, name).empty()) {
                result.emplace_back(name, std::move(value));
            }
        } else if (name == "base") {
            const QUrl inner = resolved(base, value);
            base = inner.isValid() ? inner : base;
        }
    }
    return result;
}

void FeedParser::open(const QXmlStreamReader& reader) {
    Open opening;
    opening.part = classify(reader);
    opening.base = m_open.empty() ? m_location : m_open.back().base;
    opening.attributes = readAttributes(reader.attributes(), opening.base);
    if (opening.part == FeedPart::kMarkup) {
        opening.name = reader.name().toUtf8().toStdString();
        m_markup.markElement(opening.name);
    } else if (opening.part != FeedPart::kSkipped) {
        m_characters.clear();
    }
    m_builder.begin(opening.part, opening.attributes, opening.base);
    m_isFeed = m_isFeed || opening.part == FeedPart::kFeed;
    m_open.push_back(std::move(opening));
}

FeedPart FeedParser::classify(const QXmlStreamReader& reader) const {
    const FeedPart parent = m_open.empty() ? FeedPart::kOutside : m_open.back().part;
    const bool isInXhtml = parent == FeedPart::kMarkup ||
                           (isTextConstruct(parent) && formOf(m_open.back().attributes) == TextForm::kXhtml);
    if (isInXhtml) {
        const bool isShown =
            reader.namespaceUri() == kXhtmlSpace && !isHiddenElement(reader.name().toUtf8().toStdString());
        return isShown ? FeedPart::kMarkup : FeedPart::kSkipped;
    }
    for (const Row& row : kRows) {
        if (row.parent == parent && row.name == reader.name() && reader.namespaceUri() == kAtomSpace) {
            return row.part;
        }
    }
    return FeedPart::kSkipped;
}

void FeedParser::addText(std::string_view text) {
    const FeedPart part = m_open.empty() ? FeedPart::kOutside : m_open.back().part;
    if (part == FeedPart::kMarkup) {
        m_markup.add(text);
    } else if (part != FeedPart::kSkipped && part != FeedPart::kFeed && part != FeedPart::kEntry) {
        m_characters += text;
    }
}

std::string FeedParser::takeText(const Open& ending) {
    switch (isTextConstruct(ending.part) ? formOf(ending.attributes) : TextForm::kPreformatted) {
    case TextForm::kText:
        return collapsed(m_characters);
    case TextForm::kHtml:
        return plainTextOfHtml(m_characters);
    case TextForm::kXhtml:
        return m_markup.take();
    case TextForm::kPreformatted:
        return std::string(trim(m_characters));
    default:
        return {};
    }
}

void FeedParser::close() {
    const Open ending = std::move(m_open.back());
    m_open.pop_back();
    if (ending.part == FeedPart::kMarkup) {
        m_markup.markElement(ending.name);
    } else if (ending.part != FeedPart::kSkipped) {
        m_builder.end(ending.part, takeText(ending));
    }
}

} // namespace

std::optional<FeedRecord> parseFeed(const QString& document, const QUrl& location) {
    FeedParser parser(location);
    return parser.read(document) ? std::optional(parser.take()) : std::nullopt;
}

} // namespace xbr::host
