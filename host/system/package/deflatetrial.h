#pragma once

#include "host/system/package/deflater.h"
#include "host/system/package/packageentries.h"

namespace xbr::host {

/// Tries whether files are worth deflating.
class DeflateTrial {
public:
    /// Deflates samples from all over the file; its name tells nothing. True when that makes them smaller by
    /// a hundredth or more: music as FLAC or MP3 does not, even where it begins with empty tags. False, too,
    /// when the file cannot be read.
    bool gains(const PackageEntry& entry);

private:
    std::int64_t gainOf(std::span<const std::byte> sample);

    Deflater m_deflater;
    std::vector<std::byte> m_sample;
    std::vector<std::byte> m_deflated;
};

} // namespace xbr::host
