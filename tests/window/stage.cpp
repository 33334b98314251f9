#include "tests/window/stage.h"

#include "host/app/window/frame/statusline.h"
#include "tests/fixtures/soundfiles.h"
#include "tests/fixtures/wavefile.h"
#include "tests/window/person.h"

#include <QDBusConnection>
#include <QProcess>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace xbr::host::tests {

namespace fs = std::filesystem;

Stage::Stage(int seconds) : m_service(std::make_unique<RunningService>()) {
    for (const char* variable : {"DBUS_SESSION_BUS_ADDRESS", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION"}) {
        qunsetenv(variable);
    }
    const std::pair<const char*, const char*> folders[] = {{"HOME", "home"},
                                                           {"XDG_CONFIG_HOME", "home/config"},
                                                           {"XDG_CACHE_HOME", "home/cache"},
                                                           {"XDG_DATA_HOME", "home/data"},
                                                           {"XDG_RUNTIME_DIR", "run"},
                                                           {"TMPDIR", "tmp"}};
    for (const auto& [variable, name] : folders) {
        fs::create_directories(path(name));
        fs::permissions(path(name), fs::perms::owner_all);
        setVariable(variable, path(name));
    }
    setVariable("XBRHOST_CONFIG", path("services.ini"));
    setVariable("BROWSER", path("browser"));
    setVisit(Visit::kAllow);
    setVariable("BRINDLEX_CALLBACK_PROGRAM", TEST_PROGRAM);
    configure(m_service->settings());
    makeSongs(seconds);
}

Stage::~Stage() {
    m_host.reset();
    for (const auto& [name, value] : m_variables) {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
}

void Stage::setVariable(const char* name, const std::string& value) {
    m_variables.emplace_back(name, qgetenv(name));
    qputenv(name, value.c_str());
}

void Stage::makeSongs(int seconds) {
    EXPECT_EQ(
        QProcess::execute(TEST_SONGS, {QString::fromStdString(path("songs")), QString::number(seconds)}), 0);
    for (const auto& entry : fs::directory_iterator(path("songs"))) {
        m_songs.push_back(entry.path().string());
    }
    std::sort(m_songs.begin(), m_songs.end());
}

std::string Stage::untaggedSong(const std::string& name, std::uint32_t bytes) const {
    const std::string wave = waveFile();
    const std::size_t header = wave.find("data") + 8;
    m_folder.write(name, "RIFF" + littleEndian(bytes + header - 8) + wave.substr(8, header - 12) +
                             littleEndian(bytes));
    fs::resize_file(path(name), header + bytes);
    return path(name);
}

std::string Stage::renderedSong(const std::string& name) const {
    static constexpr int kRate = 44100;
    writeSound(path(name), SF_FORMAT_AIFF | SF_FORMAT_PCM_16, kRate, kRate);
    return path(name);
}

void Stage::setVisit(Visit visit, const std::string& before) const {
    static constexpr const char* kCommands[] = {"exec " TEST_BROWSER " \"$1\"",
                                                "exec " TEST_BROWSER " --deny \"$1\"", "exit 0"};
    writeScript("browser", before + "\n" + kCommands[static_cast<int>(visit)]);
}

void Stage::writeScript(const std::string& name, const std::string& commands) const {
    m_folder.write(name, "#!/bin/sh\n" + commands + "\n");
    fs::permissions(path(name), fs::perms::owner_all);
}

void Stage::silenceSessionBus() {
    QDBusConnection::sessionBus(); // asks for the address once, and finds none
    EXPECT_TRUE(m_bus.listen(QString::fromStdString(path("bus"))));
    setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path("bus"));
    // The desktop's own way to open the browser would ask that bus.
    writeScript("xdg-open", "exec \"$BROWSER\" \"$1\"");
    setVariable("PATH", path("") + ":" + qEnvironmentVariable("PATH").toStdString());
}

WindowFront& Stage::open(const std::vector<std::string>& files, const std::string& module) {
    m_host.reset();
    m_host = std::make_unique<WindowFront>(WindowOptions{module.empty() ? TEST_MODULE : module, files});
    m_host->start();
    activate();
    return *m_host;
}

void Stage::activate() {
    EXPECT_TRUE(waitFor([this] {
        window().activateWindow();
        return window().isActiveWindow();
    }));
}

void Stage::forget() const {
    fs::remove(path("home/config/xbrhost/songs.json"));
    fs::remove(path("home/data/xbrhost/published.json"));
}

std::string Stage::status() {
    return window().findChild<StatusLine*>()->notice().text.toStdString();
}

std::size_t Stage::arrived() const {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(m_service->inbox())) {
        count += fs::exists(entry.path() / "metadata.json") ? 1U : 0U;
    }
    return count;
}

} // namespace xbr::host::tests
