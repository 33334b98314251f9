#include "host/base/textscan.h"

#include "framework/abi/uid.h"

#include <QUtf8StringView>

namespace xbr::host {

namespace {

/// The number of bytes of the control character at the front of a text; 0 when it is another one.
std::size_t controlLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x20 || first == 0x7F) {
        return 1;
    }
    const auto second = text.size() > 1 ? static_cast<unsigned char>(text[1]) : 0U;
    return first == 0xC2 && second >= 0x80 && second < 0xA0 ? 2 : 0; // U+0080 to U+009F
}

} // namespace

bool isUtf8(std::string_view text) {
    return QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

bool hasControls(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (controlLength(text.substr(i)) > 0) {
            return true;
        }
    }
    return false;
}

std::string plainText(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::size_t control = controlLength(text);
        plain += control > 0 ? ' ' : text.front();
        text.remove_prefix(control > 0 ? control : 1);
    }
    return plain;
}

std::string_view firstCharacters(std::string_view text, std::size_t width) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isFirstByte = (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80;
        if (isFirstByte && ++characters > width) {
            return text.substr(0, i);
        }
    }
    return text;
}

std::optional<std::string> percentDecoded(std::string_view text) {
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '%') {
            const int high = i + 2 < text.size() ? detail::hexDigit(text[i + 1]) : -1;
            const int low = high >= 0 ? detail::hexDigit(text[i + 2]) : -1;
            if (low < 0) {
                return std::nullopt;
            }
            c = static_cast<char>(high * 16 + low);
            i += 2;
        }
        if (c == '\0') {
            return std::nullopt;
        }
        decoded += c;
    }
    return decoded;
}

} // namespace xbr::host
