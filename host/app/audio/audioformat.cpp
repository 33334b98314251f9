#include "host/app/audio/audioformat.h"

#include "host/app/audio/mediasignature.h"
#include "host/app/audio/soundfile.h"

#include <taglib/mpegfile.h>
#include <taglib/xingheader.h>

#include <algorithm>

namespace xbr::host {

namespace {

struct Container {
    int format; ///< of libsndfile
    const char* name;
};

constexpr Container kContainers[] = {
    {SF_FORMAT_WAV, "WAV"},   {SF_FORMAT_WAVEX, "WAV"}, {SF_FORMAT_RF64, "WAV"}, {SF_FORMAT_W64, "WAV"},
    {SF_FORMAT_AIFF, "AIFF"}, {SF_FORMAT_FLAC, "FLAC"}, {SF_FORMAT_OGG, "Ogg"},  {SF_FORMAT_MPEG, "MP3"},
};

struct SampleBits {
    int format; ///< of libsndfile
    int bits;
};

constexpr SampleBits kSampleBits[] = {
    {SF_FORMAT_PCM_S8, 8},  {SF_FORMAT_PCM_U8, 8},   {SF_FORMAT_PCM_16, 16},
    {SF_FORMAT_PCM_24, 24}, {SF_FORMAT_PCM_32, 32},  {SF_FORMAT_FLOAT, 32},
    {SF_FORMAT_DOUBLE, 64}, {SF_FORMAT_ALAC_16, 16}, {SF_FORMAT_ALAC_24, 24},
};

std::string nameOf(int format) {
    const auto* found = std::find_if(std::begin(kContainers), std::end(kContainers), [format](auto& each) {
        return each.format == (format & SF_FORMAT_TYPEMASK);
    });
    return found == std::end(kContainers) ? std::string() : found->name;
}

int bitsOf(int format) {
    const auto* found = std::find_if(std::begin(kSampleBits), std::end(kSampleBits), [format](auto& each) {
        return each.format == (format & SF_FORMAT_SUBMASK);
    });
    return found == std::end(kSampleBits) ? 0 : found->bits;
}

/// Programs that cut songs leave the count of the whole in there; but what holds next to nothing of it was
/// cut off.
constexpr long kLeastPart = 10;

Outcome<AudioFormat> mpegFormat(const std::string& path) {
    TagLib::MPEG::File file(path.c_str(), true, TagLib::AudioProperties::Fast);
    const auto* properties = file.audioProperties();
    if (!properties || properties->sampleRate() <= 0 || properties->lengthInMilliseconds() <= 0) {
        return Problem{Fault::kNotAudio, path, 0, "holds no audio", {}, {}};
    }
    const auto* header = properties->xingHeader();
    if (header &&
        file.length() - file.firstFrameOffset() < static_cast<long>(header->totalSize()) / kLeastPart) {
        return Problem{Fault::kCutShort, path, 0, {}, {}, {}};
    }
    AudioFormat format;
    format.name = "MP3";
    format.milliseconds = properties->lengthInMilliseconds();
    format.sampleRate = properties->sampleRate();
    format.bitRate = properties->bitrate();
    return format;
}

} // namespace

Outcome<AudioFormat> readAudioFormat(const std::string& path) {
    static constexpr std::int64_t kMilliseconds = 1000;
    if (recognise(path) == MediaKind::kMp3) {
        return mpegFormat(path);
    }
    const auto file = SoundFile::open(path);
    if (!file) {
        return file.problem();
    }
    if (Problem problem = findNotNumbers(*file, path)) {
        return problem;
    }
    AudioFormat format;
    format.name = nameOf(file->info().format);
    format.milliseconds = file->info().frames * kMilliseconds / file->info().samplerate;
    format.sampleRate = file->info().samplerate;
    format.bits = bitsOf(file->info().format);
    return format;
}

} // namespace xbr::host
