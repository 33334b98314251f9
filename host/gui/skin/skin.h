#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace xbr::host {

/// What a skin's folder holds (docs/skin.md).
struct Skin {
    using Files = std::map<std::string, std::string, std::less<>>;

    Files forms;                 ///< Designer descriptions by form name
    Files images;                ///< SVG documents by their path in the skin
    std::string styleSheet;      ///< UTF-8; empty when the skin has none
    std::string lightStyleSheet; ///< follows the other on a light palette
    std::string darkStyleSheet;  ///< follows the other on a dark palette
    std::string module;          ///< whose resources the skin was read from; empty for other places
};

enum class SkinResult : std::uint8_t {
    kRead,       ///< `skin` holds everything that the manifest names
    kMissing,    ///< there is no manifest in the folder
    kUnreadable, ///< the manifest, or something that it names, cannot be read
};

/// Reads the skin below a folder URL. `skin` changes only when everything could be read.
SkinResult readSkin(std::string_view folder, Skin& skin);

} // namespace xbr::host
