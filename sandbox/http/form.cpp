#include "sandbox/http/form.h"

#include <algorithm>

namespace sandbox {
namespace {

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool mayStandBare(char c) {
    constexpr std::string_view kNever = "\"#<>[\\]^`{|}";
    return c > ' ' && c < 0x7f && kNever.find(c) == std::string_view::npos;
}

// The byte of the escape that begins at `at`, or -1.
int escapedByte(std::string_view text, std::size_t at) {
    if (at + 2 >= text.size()) {
        return -1;
    }
    const int high = hexDigit(text[at + 1]);
    const int low = hexDigit(text[at + 2]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

std::optional<std::string> decode(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '+') {
            out += ' ';
        } else if (text[i] == '%') {
            const int byte = escapedByte(text, i);
            if (byte < 0) {
                return std::nullopt;
            }
            out += static_cast<char>(byte);
            i += 2;
        } else if (mayStandBare(text[i])) {
            out += text[i];
        } else {
            return std::nullopt;
        }
    }
    return out;
}

} // namespace

std::optional<Form> Form::parse(std::string_view text) {
    Form form;
    while (!text.empty()) {
        const auto end = text.find('&');
        if (!form.add(text.substr(0, end)) || end + 1 == text.size()) {
            return std::nullopt;
        }
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    return form;
}

bool Form::add(std::string_view pair) {
    const auto equals = pair.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        return false;
    }
    auto name = decode(pair.substr(0, equals));
    auto text = decode(pair.substr(equals + 1));
    if (!name || !text || has(*name)) {
        return false;
    }
    m_fields.emplace_back(std::move(*name), std::move(*text));
    return true;
}

bool Form::has(std::string_view name) const {
    return std::any_of(m_fields.begin(), m_fields.end(), [&](const Field& f) { return f.first == name; });
}

std::string Form::value(std::string_view name) const {
    const auto found =
        std::find_if(m_fields.begin(), m_fields.end(), [&](const Field& f) { return f.first == name; });
    return found == m_fields.end() ? std::string() : found->second;
}

} // namespace sandbox
