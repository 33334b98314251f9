#include "host/net/feed/feedparser.h"

#include "framework/support/objects/text.h"
#include "host/net/feed/plaintext.h"

#include <algorithm>

namespace xbr::host {

namespace {

constexpr std::string_view kXhtmlSpace = "http://www.w3.org/1999/xhtml";
constexpr std::string_view kXmlSpace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kXmlns = "xmlns";

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

bool isOwn(const XmlName& attribute) {
    return attribute.space.empty();
}

/// Of another vocabulary, apart from what XML itself uses.
bool isForeign(const XmlName& attribute) {
    return !isOwn(attribute) && attribute.space != kXmlns && attribute.space != kXmlSpace;
}

bool isXhtml(const FeedElement& element, const FeedAttributes& attributes) {
    return element.text == FeedText::kAtom && formOf(attributes) == TextForm::kXhtml;
}

} // namespace

void FeedParser::startElement(Text name, IStringDictionary* attributes) noexcept {
    if (m_failed) {
        return;
    }
    m_namespaces.enter(*attributes);
    if (const auto resolvedName = m_namespaces.elementName(view(name))) {
        open(*resolvedName, *attributes);
    } else {
        m_failed = true;
    }
}

void FeedParser::open(const XmlName& name, IStringDictionary& attributes) {
    Open opening;
    opening.element = classify(name);
    opening.base = m_open.empty() ? m_location : m_open.back().base;
    opening.attributes = readAttributes(attributes, opening.base);
    if (opening.element.part == FeedPart::kMarkup) {
        opening.name = name.local;
        m_markup.markElement(opening.name);
    }
    if (opening.element.text != FeedText::kNone) {
        m_characters.clear();
    }
    m_builder.begin(opening.element.part, opening.attributes, opening.base);
    m_isFeed = m_isFeed || opening.element.part == FeedPart::kFeed;
    m_open.push_back(std::move(opening));
}

FeedAttributes FeedParser::readAttributes(const IStringDictionary& attributes, QUrl& base) {
    FeedAttributes result;
    for (std::int32_t i = 0; i < attributes.count(); ++i) {
        const auto name = m_namespaces.attributeName(view(attributes.keyAt(i)));
        const auto value = view(attributes.valueAt(i));
        if (!name) {
            m_failed = true;
        } else if (name->space == kXmlSpace && name->local == "base") {
            const QUrl inner = resolved(base, value);
            base = inner.isValid() ? inner : base;
        } else if (isOwn(*name)) {
            setAttribute(result, name->local, std::string(value));
        } else if (isForeign(*name) && attributeOf(result, name->local).empty()) {
            result.emplace_back(name->local, value);
        }
    }
    return result;
}

FeedElement FeedParser::classify(const XmlName& name) const {
    if (m_open.empty()) {
        return feedElement(FeedPart::kOutside, name);
    }
    const Open& parent = m_open.back();
    const bool isInXhtml =
        parent.element.part == FeedPart::kMarkup || isXhtml(parent.element, parent.attributes);
    if (!isInXhtml) {
        return feedElement(parent.element.part, name);
    }
    const bool isShown = name.space == kXhtmlSpace && !isHiddenElement(name.local);
    return {isShown ? FeedPart::kMarkup : FeedPart::kSkipped, FeedText::kNone};
}

void FeedParser::characters(Text text) noexcept {
    if (m_failed || m_open.empty()) {
        return;
    }
    const Open& inside = m_open.back();
    if (inside.element.part == FeedPart::kMarkup) {
        m_markup.add(view(text));
    } else if (inside.element.text != FeedText::kNone) {
        m_characters += view(text);
    }
}

std::string FeedParser::takeText(const Open& ending) {
    switch (ending.element.text) {
    case FeedText::kNone:
        return {};
    case FeedText::kHtml:
        return plainTextOfHtml(m_characters);
    case FeedText::kAtom:
        break;
    default:
        return std::string(trim(m_characters));
    }
    switch (formOf(ending.attributes)) {
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

void FeedParser::endElement(Text) noexcept {
    if (m_failed || m_open.empty()) {
        return;
    }
    const Open ending = std::move(m_open.back());
    m_open.pop_back();
    m_namespaces.leave();
    if (ending.element.part == FeedPart::kMarkup) {
        m_markup.markElement(ending.name);
        return;
    }
    m_builder.end(ending.element.part, ending.element.text, ending.attributes, ending.base, takeText(ending));
}

} // namespace xbr::host
