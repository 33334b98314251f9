#include "tests/host/app/audio/soundfiles.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace xbr::host {

namespace {

constexpr int kChannels = 2;

} // namespace

std::vector<int> testSamples(int count) {
    std::vector<int> samples;
    std::uint32_t state = 1;
    for (int i = 0; i < count; ++i) {
        state = state * 1664525U + 1013904223U;
        samples.push_back(static_cast<int>(state & 0xFFFFFF00U) / 2);
    }
    return samples;
}

void writeSound(const std::string& path, int format, int rate, int frames) {
    SF_INFO info{};
    info.samplerate = rate;
    info.channels = kChannels;
    info.format = format;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
    const auto samples = testSamples(frames * kChannels);
    EXPECT_EQ(sf_writef_int(file, samples.data(), frames), frames);
    EXPECT_EQ(sf_close(file), 0);
}

SF_INFO soundInfo(const std::string& path) {
    SF_INFO info{};
    SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
    if (!file) {
        return {};
    }
    sf_close(file);
    return info;
}

std::vector<int> readIntegers(const std::string& path) {
    SF_INFO info{};
    SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
    std::vector<int> samples(static_cast<std::size_t>(info.frames * info.channels));
    sf_readf_int(file, samples.data(), info.frames);
    sf_close(file);
    return samples;
}

std::vector<double> readNumbers(const std::string& path) {
    SF_INFO info{};
    SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
    std::vector<double> samples(static_cast<std::size_t>(info.frames * info.channels));
    sf_readf_double(file, samples.data(), info.frames);
    sf_close(file);
    return samples;
}

} // namespace xbr::host
