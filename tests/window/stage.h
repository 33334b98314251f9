#pragma once

#include "host/app/window/start/windowfront.h"
#include "tests/fixtures/testfolder.h"
#include "tests/sandbox/runningservice.h"

#include <QLocalServer>

#include <memory>
#include <string>
#include <vector>

namespace xbr::host::tests {

/// Where a test of the window plays: a service, songs, and folders of its own in the place of the user's. The
/// program's own library, extension and callback program are the built ones.
class Stage {
public:
    /// `seconds` is the length of the songs.
    explicit Stage(int seconds = 1);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    RunningService& service() { return *m_service; }

    /// The service is gone from now on.
    void stopService() { m_service.reset(); }

    /// A file or folder of this stage.
    std::string path(const std::string& name) const { return m_folder.path(name); }

    /// Three songs with all the information that a release needs: MP3, FLAC, WAV by name.
    const std::vector<std::string>& songs() const { return m_songs; }

    /// A song of silence without any tags; it takes no room on the disk, however long it is.
    std::string untaggedSong(const std::string& name, std::uint32_t bytes = 1024) const;

    /// A song of a kind that has to be rendered.
    std::string renderedSong(const std::string& name) const;

    /// What the person with the browser does with the next sign-in page; before that a line of a shell runs.
    enum class Visit { kAllow, kDeny, kGoAway };
    void setVisit(Visit visit, const std::string& before = "true") const;

    /// Writes the settings of the service.
    void configure(const std::string& settings) const { m_folder.write("services.ini", settings); }

    /// From now on there is a session bus that accepts and never says a word. This process's Qt goes without.
    void silenceSessionBus();

    /// Starts the window. `module` is the built extension unless something else is named.
    WindowFront& open(const std::vector<std::string>& files = {}, const std::string& module = {});
    WindowFront& host() { return *m_host; }
    MainWindow& window() { return m_host->window(); }

    /// Gives the window the keyboard, as a desktop does when a dialog closes.
    void activate();

    /// Takes the window down, as the end of the program does.
    void close() { m_host.reset(); }

    /// The list and what was published are forgotten, as on another computer.
    void forget() const;

    /// What the status line says.
    std::string status();

    /// The releases that arrived.
    std::size_t arrived() const;

private:
    void setVariable(const char* name, const std::string& value);
    void makeSongs(int seconds);
    void writeScript(const std::string& name, const std::string& commands) const;

    std::vector<std::pair<const char*, QByteArray>> m_variables; ///< of the environment, as they were
    TestFolder m_folder;
    QLocalServer m_bus; ///< the silent one
    std::unique_ptr<RunningService> m_service;
    std::vector<std::string> m_songs;
    std::unique_ptr<WindowFront> m_host;
};

} // namespace xbr::host::tests
