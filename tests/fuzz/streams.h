#pragma once

#include "host/system/files/resourcearchive.h"

#include <string_view>

namespace fuzz {

/// A stream at its start.
inline xbr::Ref<xbr::IStream> streamOf(std::string_view bytes) {
    return xbr::make<xbr::host::ResourceStream>(std::vector<char>(bytes.begin(), bytes.end()));
}

} // namespace fuzz
