#include "host/net/feed/plaintext.h"

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

} // namespace xbr::host
