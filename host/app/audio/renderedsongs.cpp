#include "host/app/audio/renderedsongs.h"

#include "framework/abi/progress.h"
#include "framework/abi/system.h"
#include "framework/support/objects/hostobject.h"
#include "framework/support/objects/text.h"
#include "host/system/hostfileurl.h"

#include <chrono>
#include <filesystem>
#include <system_error>

namespace xbr::host {

namespace {

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

std::string RenderedSongs::choosePath(const std::string& song) {
    const std::string stem = fs::path(song).stem().string();
    std::string name = stem + ".wav";
    for (int i = 2; !m_names.insert(name).second; ++i) {
        name = stem + " (" + std::to_string(i) + ").wav";
    }
    return m_folder + "/" + name;
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
