#include "sandbox/http/text.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace sandbox {
namespace {

constexpr std::size_t kLongestFileName = 255;

bool isUnreserved(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

bool isUnfitForFileName(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return c == '/' || c == '\\' || byte < 0x20 || byte == 0x7f;
}

} // namespace

std::string escapeMarkup(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\'':
            out += "&#39;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

std::string percentEncode(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string out;
    for (const char c : text) {
        if (isUnreserved(c)) {
            out += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            out += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
        }
    }
    return out;
}

std::string toBase64(std::span<const unsigned char> bytes) {
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const auto group = bytes.subspan(i, std::min<std::size_t>(3, bytes.size() - i));
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            bits = (bits << 8U) | (k < group.size() ? group[k] : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            out += k <= group.size() ? kAlphabet[(bits >> (18U - 6U * k)) & 63U] : '=';
        }
    }
    return out;
}

std::string randomText(std::size_t count) {
    std::random_device device;
    std::vector<unsigned char> bytes(count);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<unsigned char>(device() & 255U); });
    return toBase64(bytes);
}

std::string lowerAscii(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return out;
}

bool isPlainFileName(std::string_view name) {
    return !name.empty() && name.size() <= kLongestFileName && name != "." && name != ".." &&
           std::none_of(name.begin(), name.end(), isUnfitForFileName);
}

} // namespace sandbox
