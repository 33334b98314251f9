#include "host/net/feed/plaintext.h"

#include <algorithm>
#include <array>
#include <libxml/HTMLparser.h>
#include <memory>
#include <utility>

namespace xbr::host {

namespace {

/// Sorted, for the search.
constexpr std::array<std::string_view, 39> kBlocks = {
    "address", "article", "aside",    "blockquote", "br",     "caption", "dd",   "details", "dir",  "div",
    "dl",      "dt",      "fieldset", "figcaption", "figure", "footer",  "form", "h1",      "h2",   "h3",
    "h4",      "h5",      "h6",       "header",     "hr",     "li",      "main", "menu",    "nav",  "ol",
    "p",       "pre",     "section",  "summary",    "table",  "tbody",   "tr",   "ul",      "video"};
static_assert(std::is_sorted(kBlocks.begin(), kBlocks.end()));

constexpr bool isSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

/// The parser compares each attribute of an element with all others of it.
constexpr int kMaximumAttributes = 1000;

/// And looks for the start of each end tag in all elements that are open.
constexpr int kMaximumDepth = 256;

/// True when some element may have more attributes than that. Only the parser knows where a tag ends that is
/// not well-formed, so each end that it may have is followed, with the most attributes before it.
// NOLINTNEXTLINE(readability-function-cognitive-complexity): the states of one walk
bool mayHaveTooManyAttributes(std::string_view html) {
    static constexpr int kNever = -1;
    int inTag = kNever;
    int behindEquals = kNever;
    std::array<int, 2> inQuotes = {kNever, kNever};
    char previous = '\0';
    for (const char c : html) {
        if (c == '>') {
            inTag = behindEquals = kNever;
        } else if (c == '"' || c == '\'') {
            int& inside = inQuotes.at(c == '"' ? 0 : 1);
            inTag = std::max(inTag, inside == kNever ? kNever : inside + 1);
            inside = std::exchange(behindEquals, kNever);
        } else if (c == '=') {
            behindEquals = inTag;
        } else if (isSpace(c)) {
            inTag += inTag == kNever ? 0 : 1;
        } else {
            behindEquals = kNever;
        }
        if (previous == '<' && !isSpace(c) && c != '/' && c != '!' && c != '?') {
            inTag = std::max(inTag, 0);
        }
        if (inTag > kMaximumAttributes) {
            return true;
        }
        previous = c;
    }
    return false;
}

/// Hears from libxml2's parser of HTML, which repairs what is not well-formed and never builds a tree here.
class HtmlReader {
public:
    std::string read(std::string_view html) {
        static constexpr int kOptions = HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING |
                                        HTML_PARSE_NONET | HTML_PARSE_NOIMPLIED | HTML_PARSE_IGNORE_ENC;
        if (html.empty() || mayHaveTooManyAttributes(html)) {
            return {};
        }
        *m_parser->sax = {};
        m_parser->sax->startElement = &HtmlReader::startElement;
        m_parser->sax->endElement = &HtmlReader::endElement;
        m_parser->sax->characters = &HtmlReader::characters;
        m_parser->sax->ignorableWhitespace = &HtmlReader::characters;
        m_parser->sax->cdataBlock = &HtmlReader::ignore; // scripts and styles
        m_parser->_private = this;
        htmlCtxtReadMemory(m_parser.get(), html.data(), static_cast<int>(html.size()), nullptr, "UTF-8",
                           kOptions);
        return m_text.take();
    }

private:
    static HtmlReader& of(void* parser) {
        return *static_cast<HtmlReader*>(static_cast<htmlParserCtxt*>(parser)->_private);
    }
    static std::string_view viewOf(const xmlChar* text) { return reinterpret_cast<const char*>(text); }

    static void startElement(void* parser, const xmlChar* name, const xmlChar**) {
        auto& reader = of(parser);
        reader.m_hidden += isHiddenElement(viewOf(name)) ? 1 : 0;
        reader.m_text.markElement(viewOf(name));
        if (++reader.m_depth > kMaximumDepth) {
            xmlStopParser(reader.m_parser.get());
        }
    }
    static void endElement(void* parser, const xmlChar* name) {
        auto& reader = of(parser);
        reader.m_hidden -= isHiddenElement(viewOf(name)) ? 1 : 0;
        reader.m_text.markElement(viewOf(name));
        --reader.m_depth;
    }
    static void characters(void* parser, const xmlChar* text, int length) {
        auto& reader = of(parser);
        if (reader.m_hidden == 0) {
            reader.m_text.add({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
        }
    }
    static void ignore(void*, const xmlChar*, int) {}

    std::unique_ptr<htmlParserCtxt, decltype(&htmlFreeParserCtxt)> m_parser{htmlNewParserCtxt(),
                                                                            &htmlFreeParserCtxt};
    PlainText m_text;
    int m_depth = 0;
    int m_hidden = 0; ///< how many of the open elements are not for readers
};

} // namespace

void PlainText::put(std::string_view bytes) {
    if (const char space = std::exchange(m_pending, '\0'); space != '\0' && !m_text.empty()) {
        m_text += space;
    }
    m_text += bytes;
}

void PlainText::add(std::string_view text) {
    while (!text.empty()) {
        const auto* const end = std::find_if(text.begin(), text.end(), isSpace);
        const auto length = static_cast<std::size_t>(end - text.begin());
        if (length > 0) {
            put(text.substr(0, length));
        }
        text.remove_prefix(length);
        if (!text.empty()) {
            m_pending = m_pending == '\n' ? '\n' : ' ';
            text.remove_prefix(1);
        }
    }
}

void PlainText::breakLine() {
    m_pending = '\n';
}

void PlainText::markElement(std::string_view name) {
    if (std::binary_search(kBlocks.begin(), kBlocks.end(), name)) {
        breakLine();
    } else if (name == "td" || name == "th" || name == "img") {
        add(" ");
    }
}

std::string PlainText::take() {
    m_pending = '\0';
    return std::exchange(m_text, {});
}

std::string collapsed(std::string_view text) {
    PlainText plain;
    plain.add(text);
    return plain.take();
}

bool isHiddenElement(std::string_view name) {
    static constexpr std::string_view kHidden[] = {"head",   "iframe", "noembed",  "noframes", "object",
                                                   "script", "style",  "template", "title",    "textarea"};
    return std::find(std::begin(kHidden), std::end(kHidden), name) != std::end(kHidden);
}

std::string plainTextOfHtml(std::string_view html) {
    return HtmlReader().read(html);
}

} // namespace xbr::host
