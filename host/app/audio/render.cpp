#include "host/app/audio/render.h"

#include "host/app/audio/soundfile.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace xbr::host {

namespace {

constexpr sf_count_t kFramesAtOnce = 1 << 16;

sf_count_t readFrames(SNDFILE* file, int* frames, sf_count_t count) {
    return sf_readf_int(file, frames, count);
}
sf_count_t readFrames(SNDFILE* file, float* frames, sf_count_t count) {
    return sf_readf_float(file, frames, count);
}
sf_count_t readFrames(SNDFILE* file, double* frames, sf_count_t count) {
    return sf_readf_double(file, frames, count);
}
sf_count_t writeFrames(SNDFILE* file, const int* frames, sf_count_t count) {
    return sf_writef_int(file, frames, count);
}
sf_count_t writeFrames(SNDFILE* file, const float* frames, sf_count_t count) {
    return sf_writef_float(file, frames, count);
}
sf_count_t writeFrames(SNDFILE* file, const double* frames, sf_count_t count) {
    return sf_writef_double(file, frames, count);
}

template <class Sample>
RenderResult copyFrames(const SoundFile& source, const SoundFile& target, const RenderProgress& goOn,
                        std::string& error) {
    const sf_count_t total = source.info().frames;
    std::vector<Sample> buffer(static_cast<std::size_t>(kFramesAtOnce) *
                               static_cast<std::size_t>(source.info().channels));
    for (sf_count_t done = 0; done < total;) {
        const sf_count_t came = readFrames(source.handle(), buffer.data(), kFramesAtOnce);
        if (came <= 0) {
            error = "is damaged: its audio cannot be read to the end";
            return RenderResult::kFailed;
        }
        if (writeFrames(target.handle(), buffer.data(), came) != came) {
            error = "cannot be rendered to WAV: " + target.lastError();
            return RenderResult::kFailed;
        }
        done += came;
        if (!goOn(static_cast<double>(done) / static_cast<double>(total))) {
            return RenderResult::kGivenUp;
        }
    }
    return RenderResult::kDone;
}

RenderResult copy(const SoundFile& source, const SoundFile& target, SampleForm form,
                  const RenderProgress& goOn, std::string& error) {
    switch (form) {
    case SampleForm::kInteger:
        return copyFrames<int>(source, target, goOn, error);
    case SampleForm::kFloat:
        return copyFrames<float>(source, target, goOn, error);
    case SampleForm::kDouble:
        break;
    }
    return copyFrames<double>(source, target, goOn, error);
}

} // namespace

RenderResult renderToWav(const std::string& from, const std::string& to, const RenderProgress& goOn,
                         std::string& error) {
    auto source = SoundFile::open(from, error);
    if (!source) {
        return RenderResult::kFailed;
    }
    const WavFormat format = wavFormatFor(source->info());
    SF_INFO info{};
    info.samplerate = source->info().samplerate;
    info.channels = source->info().channels;
    info.format = format.format;
    auto target = SoundFile::create(to, info, error);
    if (!target) {
        error = "cannot be rendered to WAV: " + error;
        return RenderResult::kFailed;
    }
    RenderResult result = copy(*source, *target, format.samples, goOn, error);
    if (!target->close() && result == RenderResult::kDone) {
        error = "cannot be rendered to WAV: the file cannot be finished";
        result = RenderResult::kFailed;
    }
    if (result != RenderResult::kDone) {
        std::error_code ignored; // what stays goes with the folder that it is in
        std::filesystem::remove(to, ignored);
    }
    return result;
}

} // namespace xbr::host
