#include "host/net/feed/htmltext.h"

#include "framework/support/objects/text.h"
#include "host/net/feed/htmlentities.h"
#include "host/net/feed/plaintext.h"

#include <algorithm>

namespace xbr::host {

namespace {

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

std::string plainTextOfHtml(std::string_view html) {
    return HtmlReader(html).read();
}

} // namespace xbr::host
