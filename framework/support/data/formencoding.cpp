#include "framework/support/data/formencoding.h"

#include "framework/abi/uid.h"

#include <algorithm>

namespace xbr {

namespace {

bool isAlphanumeric(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

void appendPercent(std::string& text, char byte) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += '%';
    text += kDigits[value >> 4U];
    text += kDigits[value & 15U];
}

std::string encode(std::string_view text, std::string_view alsoPlain) {
    std::string encoded;
    encoded.reserve(text.size());
    for (const char c : text) {
        if (isAlphanumeric(c) || alsoPlain.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            appendPercent(encoded, c);
        }
    }
    return encoded;
}

std::string formEncodeText(std::string_view text) {
    // The space is let through first and then written as "+"; a "+" of the text itself is "%2B" by then.
    std::string encoded = encode(text, "*-._ ");
    std::replace(encoded.begin(), encoded.end(), ' ', '+');
    return encoded;
}

std::string formDecodeText(std::string_view text) {
    std::string plain(text);
    std::replace(plain.begin(), plain.end(), '+', ' ');
    return percentDecode(plain);
}

} // namespace

std::string formEncode(const Pairs& pairs) {
    std::string text;
    for (const auto& [name, value] : pairs) {
        if (!text.empty()) {
            text += '&';
        }
        text += formEncodeText(name) + '=' + formEncodeText(value);
    }
    return text;
}

Pairs formDecode(std::string_view text) {
    Pairs pairs;
    while (!text.empty()) {
        const auto end = std::min(text.find('&'), text.size());
        const auto pair = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (pair.empty()) {
            continue;
        }
        const auto equals = std::min(pair.find('='), pair.size());
        const auto value = equals < pair.size() ? pair.substr(equals + 1) : std::string_view();
        pairs.emplace_back(formDecodeText(pair.substr(0, equals)), formDecodeText(value));
    }
    return pairs;
}

std::string encodePathSegment(std::string_view text) {
    return encode(text, "-._~!$&'()*+,;=:@");
}

std::string percentDecode(std::string_view text) {
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? detail::hexDigit(text[i + 1]) : -1;
        const int low = high >= 0 ? detail::hexDigit(text[i + 2]) : -1;
        if (low >= 0) {
            decoded += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

} // namespace xbr
