#include "tests/window/stage.h"

#include "host/app/window/frame/statusline.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <sndfile.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace xbr::host::tests {

namespace {

namespace fs = std::filesystem;

} // namespace

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
    configure(m_service->origin());
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

std::string Stage::path(const std::string& name) const {
    return m_folder.filePath(QString::fromStdString(name)).toStdString();
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
    static constexpr std::size_t kHeaderSize = 44;
    std::string header("RIFF....WAVEfmt \x10\0\0\0\1\0\1\0\x80\xBB\0\0\0\x77\1\0\2\0\x10\0data....",
                       kHeaderSize);
    for (const auto& [place, value] : {std::pair(4, bytes + 36), std::pair(40, bytes)}) {
        for (int i = 0; i < 4; ++i) {
            header[static_cast<std::size_t>(place + i)] = static_cast<char>(value >> (8 * i));
        }
    }
    std::ofstream(path(name), std::ios::binary) << header;
    fs::resize_file(path(name), kHeaderSize + bytes);
    return path(name);
}

std::string Stage::renderedSong(const std::string& name) const {
    static constexpr int kRate = 44100;
    SF_INFO info{};
    info.samplerate = kRate;
    info.channels = 1;
    info.format = SF_FORMAT_AIFF | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(path(name).c_str(), SFM_WRITE, &info);
    const std::vector<short> samples(kRate, 1000);
    sf_writef_short(file, samples.data(), kRate);
    sf_close(file);
    return path(name);
}

void Stage::setVisit(Visit visit) const {
    static constexpr const char* kCommands[] = {"exec " TEST_BROWSER " \"$1\"",
                                                "exec " TEST_BROWSER " --deny \"$1\"", "exit 0"};
    std::ofstream(path("browser")) << "#!/bin/sh\n" << kCommands[static_cast<int>(visit)] << '\n';
    fs::permissions(path("browser"), fs::perms::owner_all);
}

void Stage::configure(const std::string& server) const {
    std::ofstream file(path("services.ini"));
    if (!server.empty()) {
        file << "[brindlex]\nServerURL=" << server << "\nUserURL=" << server
             << "/\nConsumerKey=brindlex-demo\nConsumerSecret=brindlex-demo-secret\n"
                "CallbackURL=brindlex://authorize\n";
    }
}

void Stage::silenceSessionBus() {
    QDBusConnection::sessionBus(); // asks for the address once, and finds none
    EXPECT_TRUE(m_bus.listen(QString::fromStdString(path("bus"))));
    setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path("bus"));
    // The desktop's own way to open the browser would ask that bus.
    std::ofstream(path("xdg-open")) << "#!/bin/sh\nexec \"$BROWSER\" \"$1\"\n";
    fs::permissions(path("xdg-open"), fs::perms::owner_all);
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
        count += fs::exists(entry.path() / "metadata.json") ? 1 : 0;
    }
    return count;
}

bool waitFor(const std::function<bool()>& condition, int milliseconds) {
    return QTest::qWaitFor(condition, milliseconds);
}

std::unique_ptr<QTimer> whenever(const std::function<bool()>& act) {
    static constexpr int kPause = 5;
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [timer = timer.get(), act] {
        timer->stop(); // it may run the event loop
        if (!act()) {
            timer->start();
        }
    });
    timer->start(kPause);
    return timer;
}

} // namespace xbr::host::tests
