#include "host/app/audio/soundfile.h"

#include "host/app/audio/wholeness.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace xbr::host {

namespace {

struct Depth {
    int subtype; ///< of the WAV file
    int bytes;   ///< of a sample
    SampleForm form;
};

Depth depthFor(int subtype) {
    switch (subtype) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
        return {SF_FORMAT_PCM_U8, 1, SampleForm::kInteger}; // WAV has no signed bytes
    case SF_FORMAT_PCM_16:
    case SF_FORMAT_ALAC_16:
    case SF_FORMAT_DWVW_16:
    case SF_FORMAT_DPCM_16:
    case SF_FORMAT_ULAW:
    case SF_FORMAT_ALAW:
        return {SF_FORMAT_PCM_16, 2, SampleForm::kInteger};
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_ALAC_32:
        return {SF_FORMAT_PCM_32, 4, SampleForm::kInteger};
    case SF_FORMAT_FLOAT:
        return {SF_FORMAT_FLOAT, 4, SampleForm::kFloat};
    case SF_FORMAT_DOUBLE:
        return {SF_FORMAT_DOUBLE, 8, SampleForm::kDouble};
    case SF_FORMAT_PCM_24:
    case SF_FORMAT_ALAC_20:
    case SF_FORMAT_ALAC_24:
    case SF_FORMAT_DWVW_24:
        return {SF_FORMAT_PCM_24, 3, SampleForm::kInteger};
    default: // decoders answer floating point, and peaks beyond full scale
        return {SF_FORMAT_PCM_24, 3, SampleForm::kFloat};
    }
}

std::string words(SNDFILE* file) {
    std::string text = sf_strerror(file);
    while (!text.empty() && (text.back() == '.' || text.back() == '\n')) {
        text.pop_back();
    }
    return text;
}

} // namespace

Outcome<SoundFile> SoundFile::open(const std::string& path) {
    SF_INFO info{};
    SNDFILE* opened = sf_open(path.c_str(), SFM_READ, &info);
    const std::string reason = opened ? std::string() : " (" + words(nullptr) + ")";
    if (!opened && isHeaderOnly(path)) {
        return Problem{Fault::kCutShort, path, 0, kDamaged, {}, {}};
    }
    if (!opened || (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RAW) {
        sf_close(opened);
        return Problem{Fault::kNotAudio, path, 0, "is not audio that can be read" + reason, {}, {}};
    }
    SoundFile file(opened, info);
    if (Problem problem = checkWhole(path, file.m_file, file.m_info)) {
        return problem;
    }
    return file;
}

Outcome<SoundFile> SoundFile::create(const std::string& path, const SF_INFO& info) {
    SF_INFO wanted = info;
    SNDFILE* opened = sf_open(path.c_str(), SFM_WRITE, &wanted);
    if (!opened) {
        return Problem{Fault::kNotWritable, path, 0, words(nullptr), {}, {}};
    }
    sf_command(opened, SFC_SET_CLIPPING, nullptr, SF_TRUE);
    // It would hold the time of day: the same song should become the same file.
    sf_command(opened, SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
    return SoundFile(opened, info);
}

SoundFile::~SoundFile() {
    close();
}

std::string SoundFile::lastError() const {
    return words(m_file);
}

bool SoundFile::close() {
    SNDFILE* file = std::exchange(m_file, nullptr);
    return !file || sf_close(file) == 0;
}

Problem findNotNumbers(const SoundFile& file, const std::string& path) {
    static constexpr sf_count_t kPiece = 65536;
    const int subtype = file.info().format & SF_FORMAT_SUBMASK;
    if (subtype != SF_FORMAT_FLOAT && subtype != SF_FORMAT_DOUBLE) {
        return {};
    }
    std::vector<double> samples(static_cast<std::size_t>(kPiece * file.info().channels));
    bool isFinite = true;
    sf_count_t frames = 0;
    while (isFinite && (frames = sf_readf_double(file.handle(), samples.data(), kPiece)) > 0) {
        isFinite = std::all_of(samples.begin(), samples.begin() + frames * file.info().channels,
                               [](double sample) { return std::isfinite(sample); });
    }
    sf_seek(file.handle(), 0, SEEK_SET);
    return isFinite ? Problem{}
                    : Problem{Fault::kNotNumbers, path, 0, "holds samples that are not numbers", {}, {}};
}

WavFormat wavFormatFor(const SF_INFO& info) {
    static constexpr std::int64_t kHeaders = 4096;
    static constexpr std::int64_t kLargestWav = std::numeric_limits<std::uint32_t>::max() - kHeaders;
    const Depth depth = depthFor(info.format & SF_FORMAT_SUBMASK);
    const std::int64_t frameSize = static_cast<std::int64_t>(depth.bytes) * info.channels;
    const bool fits = info.frames <= kLargestWav / frameSize;
    return {(fits ? SF_FORMAT_WAV : SF_FORMAT_RF64) | depth.subtype, depth.form};
}

} // namespace xbr::host
