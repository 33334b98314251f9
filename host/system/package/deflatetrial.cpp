#include "host/system/package/deflatetrial.h"

#include <algorithm>

namespace xbr::host {

namespace {

constexpr std::int64_t kSampleSize = 32768;
constexpr std::int64_t kMaximumSamples = 7;
constexpr std::int64_t kLeastGain = 100; ///< the part of the size that must be gained: a hundredth

} // namespace

std::int64_t DeflateTrial::gainOf(std::span<const std::byte> sample) {
    const auto deflated = m_deflater.deflate(sample, true, m_deflated);
    return static_cast<std::int64_t>(sample.size()) - static_cast<std::int64_t>(deflated);
}

bool DeflateTrial::gains(const PackageEntry& entry) {
    const std::int64_t size = entry.identity.size;
    const std::int64_t sampleSize = std::min(size, kSampleSize);
    const std::int64_t samples = std::min(size / kSampleSize + 1, kMaximumSamples);
    const std::int64_t step = samples > 1 ? (size - sampleSize) / (samples - 1) : 0;
    m_sample.resize(static_cast<std::size_t>(sampleSize));
    m_deflated.resize(Deflater::bound(m_sample.size()));
    PackageSource source(entry);
    std::int64_t total = 0;
    std::int64_t best = 0;
    for (std::int64_t i = 0; i < samples; ++i) {
        if (!source.read(i * step, m_sample)) {
            return false;
        }
        const auto gain = gainOf(m_sample);
        total += gain;
        best = std::max(best, gain);
    }
    // One that shrinks among many is a gap between tags and music, or a picture.
    const bool isBestLeftOut = samples == kMaximumSamples;
    const auto counted = sampleSize * (isBestLeftOut ? samples - 1 : samples);
    const auto gained = isBestLeftOut ? total - best : total;
    return gained > 0 && gained >= counted / kLeastGain;
}

} // namespace xbr::host
