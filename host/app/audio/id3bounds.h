#pragma once

#include <cstdint>
#include <string_view>

namespace xbr::host {

/// Length of an ID3v2 tag with its header, from its first ten bytes (ID3v2.4.0, 3.1); 0 when there is none.
std::uint64_t id3Length(std::string_view start);

/// True when a whole ID3v2 tag holds neither very many frames nor compressed ones that grow without bounds.
bool isId3Bounded(std::string_view tag);

} // namespace xbr::host
