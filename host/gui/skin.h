#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace xbr::host {

/// What a skin's folder holds (docs/skin.md).
struct Skin {
    std::map<std::string, std::string, std::less<>> forms; ///< Designer descriptions by form name
    std::string styleSheet;                                ///< UTF-8; empty when the skin has none
};

enum class SkinResult : std::uint8_t {
    kRead,       ///< `skin` holds everything that the manifest names
    kMissing,    ///< there is no manifest in the folder
    kUnreadable, ///< the manifest, or something that it names, cannot be read
};

/// Reads the skin below a folder URL. `skin` changes only when everything could be read.
SkinResult readSkin(std::string_view folder, Skin& skin);

} // namespace xbr::host
