#include "framework/support/objects/text.h"

#include "framework/abi/textformats.h"

#include <algorithm>

namespace xbr {

std::string take(const Ref<IString>& text) {
    return text ? toString(text->text()) : std::string();
}

Result giveText(std::string text, IString** out) {
    *out = make<String>(std::move(text)).detach();
    return kOk;
}

std::string toString(const Uid& uid) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (int i = 0; i < 16; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            text += '-';
        }
        text += kDigits[uid.bytes[i] >> 4U];
        text += kDigits[uid.bytes[i] & 15U];
    }
    return text;
}

std::string_view trim(std::string_view text) {
    static constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";
    const auto first = text.find_first_not_of(kWhiteSpace);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

std::string toSingleLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    char previous = ' ';
    for (const char c : text) {
        const bool isSecondOfTwo = previous == '\r' && c == '\n';
        if (!isSecondOfTwo) {
            line += c == '\n' || c == '\r' || c == '\t' || c == '\v' || c == '\f' ? ' ' : c;
        }
        previous = c;
    }
    return line;
}

std::string asciiLower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

std::string toAscii(std::string_view text) {
    std::string ascii;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            ascii += c;
        } else if ((byte & 0xC0U) != 0x80) { // not a continuation byte: a character begins here
            ascii += '?';
        }
    }
    return ascii;
}

std::string foldCase(std::string_view text) {
    Ref<IString> folded;
    return XBRFoldCase(toText(text), folded.out()) == kOk ? take(folded) : std::string(text);
}

} // namespace xbr
