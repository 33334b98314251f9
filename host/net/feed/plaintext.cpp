#include "host/net/feed/plaintext.h"

#include "framework/support/objects/text.h"
#include "host/net/feed/htmlentities.h"

#include <algorithm>
#include <array>
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

std::string toUtf8(char32_t c) {
    const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
    const auto tail = [&](int shift) { return byte(0x80U | ((c >> static_cast<unsigned>(shift)) & 0x3FU)); };
    if (c < 0x80) {
        return {byte(c)};
    }
    if (c < 0x800) {
        return {byte(0xC0U | (c >> 6U)), tail(0)};
    }
    if (c < 0x10000) {
        return {byte(0xE0U | (c >> 12U)), tail(6), tail(0)};
    }
    return {byte(0xF0U | (c >> 18U)), tail(12), tail(6), tail(0)};
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Reads a fragment roughly as the HTML standard tokenises it (section 13.2.5).
class HtmlReader {
public:
    explicit HtmlReader(std::string_view html) : m_rest(html) {}

    std::string read() {
        while (!m_rest.empty()) {
            const auto special = std::min(m_rest.find_first_of("<&"), m_rest.size());
            m_text.add(m_rest.substr(0, special));
            m_rest.remove_prefix(special);
            if (!m_rest.empty()) {
                m_rest.front() == '<' ? readMarkup() : readReference();
            }
        }
        return m_text.take();
    }

private:
    /// Cuts everything up to and with the next `end`; all the rest when there is none.
    void skipBehind(std::string_view end) {
        const auto found = m_rest.find(end);
        m_rest.remove_prefix(found == std::string_view::npos ? m_rest.size() : found + end.size());
    }

    void readMarkup() {
        const char next = m_rest.size() > 1 ? m_rest[1] : '\0';
        const bool isEnd = next == '/' && m_rest.size() > 2 && isLetter(m_rest[2]);
        if (isLetter(next) || isEnd) {
            m_rest.remove_prefix(isEnd ? 2 : 1);
            readTag(isEnd);
        } else if (m_rest.starts_with("<!--")) {
            skipBehind("-->");
        } else if (next == '!' || next == '?' || next == '/') {
            skipBehind(">");
        } else {
            takeLiterally();
        }
    }

    void readTag(bool isEnd) {
        const auto end = std::min(m_rest.find_first_of(" \t\r\n\f/>"), m_rest.size());
        const std::string name = asciiLower(m_rest.substr(0, end));
        m_rest.remove_prefix(end);
        skipAttributes();
        if (!isEnd && isHiddenElement(name)) {
            skipContents(name);
        } else {
            m_text.markElement(name);
        }
    }

    void skipAttributes() {
        bool isValueNext = false; // only there is a quote more than a part of a name
        while (!m_rest.empty() && m_rest.front() != '>') {
            const char c = m_rest.front();
            m_rest.remove_prefix(1);
            if (isValueNext && (c == '"' || c == '\'')) {
                skipBehind(std::string_view(&c, 1));
            }
            isValueNext = c == '=' || (isValueNext && c == ' ');
        }
        m_rest.remove_prefix(std::min<std::size_t>(m_rest.size(), 1));
    }

    void skipContents(std::string_view name) {
        for (;;) {
            skipBehind("</");
            if (m_rest.empty() || asciiLower(m_rest.substr(0, name.size())) == name) {
                skipBehind(">");
                return;
            }
        }
    }

    void readReference() {
        static constexpr std::size_t kLongest = 32;
        const auto end = m_rest.substr(0, kLongest).find(';');
        const auto character =
            end == std::string_view::npos ? std::nullopt : htmlCharacter(m_rest.substr(1, end - 1));
        if (!character) {
            takeLiterally();
            return;
        }
        m_text.addCharacter(*character);
        m_rest.remove_prefix(end + 1);
    }

    void takeLiterally() {
        m_text.add(m_rest.substr(0, 1));
        m_rest.remove_prefix(1);
    }

    std::string_view m_rest;
    PlainText m_text;
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

void PlainText::addCharacter(char32_t character) {
    if (character < 0x80 && isSpace(static_cast<char>(character))) {
        add(" ");
    } else {
        put(toUtf8(character));
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
    return HtmlReader(html).read();
}

} // namespace xbr::host
