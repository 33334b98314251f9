#include "ui/pictures/picturefile.h"

#include <cstdint>

namespace brindlex {

namespace {

constexpr std::string_view kMark = "brindlex picture 2";

/// FNV-1a. It guards against broken disks and tells files apart, not against people who can write in the
/// user's folders.
std::uint64_t hashOf(std::string_view bytes) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : bytes) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    return hash;
}

std::string hexadecimal(std::uint64_t number) {
    static constexpr int kDigits = 16;
    std::string text;
    for (int shift = (kDigits - 1) * 4; shift >= 0; shift -= 4) {
        text += "0123456789abcdef"[(number >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

/// Cuts a line with its end; nothing when there is no whole one.
std::optional<std::string_view> takeLine(std::string_view& text) {
    const auto end = text.find('\n');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
}

bool isOneLine(std::string_view text) {
    return text.find('\n') == std::string_view::npos;
}

} // namespace

std::string writePicture(const StoredPicture& picture) {
    std::string guarded;
    for (const std::string& line : {picture.location, picture.entityTag, picture.lastModified}) {
        guarded += (isOneLine(line) ? line : std::string()) + '\n';
    }
    guarded += picture.bytes;
    return std::string(kMark) + '\n' + hexadecimal(hashOf(guarded)) + '\n' + guarded;
}

std::optional<StoredPicture> readPicture(std::string_view file) {
    const auto mark = takeLine(file);
    const auto sum = takeLine(file);
    if (mark != kMark || !sum || *sum != hexadecimal(hashOf(file))) {
        return std::nullopt;
    }
    StoredPicture picture;
    for (std::string* field : {&picture.location, &picture.entityTag, &picture.lastModified}) {
        const auto line = takeLine(file);
        if (!line) {
            return std::nullopt;
        }
        *field = *line;
    }
    picture.bytes = file;
    return picture;
}

std::string pictureFileName(std::string_view location) {
    return hexadecimal(hashOf(location)) + ".picture";
}

} // namespace brindlex
