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

template <class Sample>
using Access = sf_count_t (*)(SNDFILE*, Sample*, sf_count_t);

Problem problemOf(const std::string& song, Fault fault, const std::string& words) {
    return {fault, song, 0, words, {}, {}};
}

Problem unwritten(const std::string& song, const std::string& reason) {
    return problemOf(song, Fault::kNotWritable, "cannot be rendered to WAV: " + reason);
}

/// A song on its way into a file.
struct Rendering {
    const std::string& song;
    const SoundFile& source;
    const SoundFile& target;
    const RenderProgress& goOn;

    template <class Sample>
    Outcome<void> copy(Access<Sample> read, Access<const Sample> write) const {
        const sf_count_t total = source.info().frames;
        std::vector<Sample> buffer(static_cast<std::size_t>(kFramesAtOnce) *
                                   static_cast<std::size_t>(source.info().channels));
        for (sf_count_t done = 0; done < total;) {
            const sf_count_t came = read(source.handle(), buffer.data(), kFramesAtOnce);
            if (came <= 0) {
                return problemOf(song, Fault::kCutShort, "is damaged: its audio cannot be read to the end");
            }
            if (write(target.handle(), buffer.data(), came) != came) {
                return unwritten(song, target.lastError());
            }
            done += came;
            if (!goOn(static_cast<double>(done) / static_cast<double>(total))) {
                return problemOf(song, Fault::kCancelled, {});
            }
        }
        return {};
    }

    Outcome<void> copyAs(SampleForm form) const {
        switch (form) {
        case SampleForm::kInteger:
            return copy<int>(&sf_readf_int, &sf_writef_int);
        case SampleForm::kFloat:
            return copy<float>(&sf_readf_float, &sf_writef_float);
        case SampleForm::kDouble:
            break;
        }
        return copy<double>(&sf_readf_double, &sf_writef_double);
    }
};

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

Outcome<void> renderToWav(const std::string& from, const std::string& to, const RenderProgress& goOn) {
    auto source = SoundFile::open(from);
    if (!source) {
        return source.problem();
    }
    const WavFormat format = wavFormatFor(source->info());
    SF_INFO info{};
    info.samplerate = source->info().samplerate;
    info.channels = source->info().channels;
    info.format = format.format;
    auto target = SoundFile::create(to, info);
    if (!target) {
        return unwritten(from, target.problem().words);
    }
    auto result = Rendering{from, *source, *target, goOn}.copyAs(format.samples);
    if (!target->close() && result) {
        result = unwritten(from, "the file cannot be finished");
    }
    if (!result) {
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

Outcome<void> RenderedSongs::render(const std::string& song, const std::string& path) {
    std::error_code failed;
    fs::create_directories(m_folder, failed);
    if (m_folder.empty() || failed) {
        return unwritten(song, "there is no temporary folder");
    }
    Indicator indicator(song);
    return renderToWav(song, path, [&indicator](double fraction) { return indicator.tell(fraction); });
}

} // namespace xbr::host
