#pragma once

#include <cstdint>

class QPalette;

namespace xbr::host {

enum class Appearance : std::uint8_t { kLight, kDark };

/// A palette for a whole program, which skins go well with. The host program uses both, modules never.
[[gnu::visibility("default")]] QPalette hostPalette(Appearance appearance);

/// Light when text is darker than what it stands on.
[[gnu::visibility("default")]] Appearance appearanceOf(const QPalette& palette);

} // namespace xbr::host
