#include "host/app/audio/rendering.h"

#include "framework/abi/progress.h"
#include "framework/abi/system.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/app/audio/soundfile.h"
#include "host/base/fileurl.h"

#include <chrono>
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

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kTellEvery{50};

std::string temporaryFolder() {
    Ref<IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    return localPath(take(url)).value_or("");
}

/// The front end's indicator while one song is rendered.
class Indicator {
public:
    explicit Indicator(const std::string& song)
        : m_indicator(createHostObject<IProgressIndicator>()),
          m_progress(query<IProgress>(m_indicator.get())),
          m_name(fs::path(song).filename().string()) {
        if (m_indicator) {
            static constexpr std::int32_t kMayCancel = 1;
            m_indicator->setTitle(toText("Rendering to WAV"));
            m_indicator->setOption(kMayCancel);
            m_indicator->begin();
        }
    }
    Indicator(const Indicator&) = delete;
    Indicator& operator=(const Indicator&) = delete;
    ~Indicator() {
        if (m_indicator) {
            m_indicator->end();
        }
    }

    /// False when the user cancelled.
    bool tell(double fraction) {
        const auto now = std::chrono::steady_clock::now();
        if (!m_progress || (now - m_told < kTellEvery && fraction < 1.0)) {
            return true;
        }
        m_told = now;
        m_progress->update(fraction, toText(m_name));
        return !m_progress->isCancelled();
    }

private:
    Ref<IProgressIndicator> m_indicator;
    Ref<IProgress> m_progress;
    std::string m_name;
    std::chrono::steady_clock::time_point m_told;
};

} // namespace

RenderResult renderToWav(const std::string& from, const std::string& to, const RenderProgress& goOn,
                         std::string& error) {
    auto source = SoundFile::open(from);
    if (!source) {
        error = source.problem().words;
        return RenderResult::kFailed;
    }
    const WavFormat format = wavFormatFor(source->info());
    SF_INFO info{};
    info.samplerate = source->info().samplerate;
    info.channels = source->info().channels;
    info.format = format.format;
    auto target = SoundFile::create(to, info);
    if (!target) {
        error = "cannot be rendered to WAV: " + target.problem().words;
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

RenderedSongs::RenderedSongs() {
    static int counter = 0;
    const std::string temporary = temporaryFolder();
    if (!temporary.empty()) {
        m_folder = temporary + "/rendered-" + std::to_string(++counter);
    }
}

RenderedSongs::~RenderedSongs() {
    std::error_code ignored; // what stays goes with the temporary folder
    if (!m_folder.empty()) {
        fs::remove_all(m_folder, ignored);
    }
}

RenderResult RenderedSongs::render(const std::string& song, const std::string& path, std::string& error) {
    std::error_code failed;
    fs::create_directories(m_folder, failed);
    if (m_folder.empty() || failed) {
        error = "cannot be rendered to WAV: there is no temporary folder";
        return RenderResult::kFailed;
    }
    Indicator indicator(song);
    return renderToWav(
        song, path, [&indicator](double fraction) { return indicator.tell(fraction); }, error);
}

} // namespace xbr::host
