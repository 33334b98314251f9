#pragma once

#include <cstdint>

namespace xbr {

/// Identifies an interface or a class: 16 fixed bytes, in the order in which the text form shows them.
struct Uid {
    std::uint8_t bytes[16];

    friend constexpr bool operator==(const Uid& left, const Uid& right) {
        for (int i = 0; i < 16; ++i) {
            if (left.bytes[i] != right.bytes[i]) {
                return false;
            }
        }
        return true;
    }
};

namespace detail {

constexpr int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

} // namespace detail

/// Reads the usual text form, "b827331a-7a50-4643-81c6-368232a08350", in any case; false when it is
/// malformed.
constexpr bool parseUid(const char* text, std::uint64_t length, Uid& uid) {
    if (length != 36) {
        return false;
    }
    Uid parsed{};
    int digits = 0;
    for (int i = 0; i < 36; ++i) {
        const bool isHyphen = i == 8 || i == 13 || i == 18 || i == 23;
        const int digit = detail::hexDigit(text[i]);
        if (isHyphen ? text[i] != '-' : digit < 0) {
            return false;
        }
        if (!isHyphen) {
            auto& byte = parsed.bytes[digits++ / 2];
            byte = static_cast<std::uint8_t>(byte * 16 + digit);
        }
    }
    uid = parsed;
    return true;
}

/// The UID of a text. A malformed one does not compile.
consteval Uid uid(const char (&text)[37]) {
    Uid result{};
    if (!parseUid(text, 36, result)) {
        throw "a malformed UID";
    }
    return result;
}

} // namespace xbr
