#include "framework/support/data/url.h"

#include "framework/support/data/formencoding.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace xbr {

namespace {

bool isSchemeText(std::string_view text) {
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto isRest = [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
    };
    return !text.empty() && isLetter(text.front()) && std::all_of(text.begin(), text.end(), isRest);
}

/// Cuts `text` at the first of `delimiters` and answers what stands before it.
std::string_view cutAt(std::string_view& text, std::string_view delimiters) {
    const auto end = std::min(text.find_first_of(delimiters), text.size());
    const auto front = text.substr(0, end);
    text.remove_prefix(end);
    return front;
}

} // namespace

Url::Url(std::string_view text) {
    text = trim(text);
    if (const auto colon = text.find(':');
        colon != std::string_view::npos && isSchemeText(text.substr(0, colon))) {
        m_scheme = text.substr(0, colon);
        m_protocol = asciiLower(m_scheme);
        text.remove_prefix(colon + 1);
    }
    if (text.substr(0, 2) == "//") {
        text.remove_prefix(2);
        m_authority = "//";
        m_authority += cutAt(text, "/?#");
    }
    m_path = cutAt(text, "?#");
    m_query = cutAt(text, "#");
    m_fragment = text;
}

bool Url::isLocalFile() const {
    return m_protocol == "file" && !m_path.empty() && m_path.back() != '/';
}

std::string Url::fileName() const {
    const auto slash = m_path.rfind('/');
    return percentDecode(slash == std::string::npos ? m_path : m_path.substr(slash + 1));
}

std::string Url::extension() const {
    const std::string name = fileName();
    const auto dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : asciiLower(std::string_view(name).substr(dot + 1));
}

void Url::appendPath(std::string_view relative) {
    const bool hasEnd = !m_path.empty() && m_path.back() == '/';
    const bool hasStart = !relative.empty() && relative.front() == '/';
    if (hasEnd && hasStart) {
        relative.remove_prefix(1);
    } else if (!hasEnd && !hasStart) {
        m_path += '/';
    }
    m_path += relative;
    dropQuery();
}

void Url::dropQuery() {
    m_query.clear();
    m_fragment.clear();
}

Url Url::join(std::string_view name) const {
    Url result = *this;
    result.appendPath(encodePathSegment(name));
    if (result.m_path.size() > 1 && result.m_path.back() == '/') {
        result.m_path.pop_back();
    }
    return result;
}

Url Url::parent() const {
    Url result = *this;
    const auto slash = m_path.rfind('/');
    result.m_path =
        slash == std::string::npos ? std::string() : m_path.substr(0, std::max<std::size_t>(slash, 1));
    result.dropQuery();
    return result;
}

std::string Url::queryParameter(std::string_view name) const {
    const Pairs pairs =
        formDecode(m_query.empty() ? std::string_view() : std::string_view(m_query).substr(1));
    const auto found =
        std::find_if(pairs.begin(), pairs.end(), [&](const auto& pair) { return pair.first == name; });
    return found == pairs.end() ? std::string() : found->second;
}

void Url::addQueryParameter(std::string_view name, std::string_view value) {
    m_query += m_query.empty() ? "?" : m_query == "?" ? "" : "&";
    m_query += formEncode({{std::string(name), std::string(value)}});
}

std::string Url::toString() const {
    return (m_scheme.empty() ? std::string() : m_scheme + ':') + m_authority + m_path + m_query + m_fragment;
}

} // namespace xbr
