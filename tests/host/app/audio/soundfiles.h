#pragma once

#include <sndfile.h>

#include <string>
#include <vector>

namespace xbr::host {

/// Samples that use the whole range of 24 bits, and differ from each other.
std::vector<int> testSamples(int count);

/// Writes a recording of two channels with libsndfile; `samples` are left-aligned integers.
void writeSound(const std::string& path, int format, int rate = 44100, int frames = 5000);

/// What libsndfile says about a file; a format of 0 when it cannot be read.
SF_INFO soundInfo(const std::string& path);

/// The samples of a file: left-aligned integers, or as floating point.
std::vector<int> readIntegers(const std::string& path);
std::vector<double> readNumbers(const std::string& path);

} // namespace xbr::host
