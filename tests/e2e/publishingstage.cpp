#include "tests/e2e/publishingstage.h"

#include "framework/abi/filetype.h"
#include "framework/abi/pluginmanager.h"
#include "framework/abi/progress.h"
#include "framework/abi/system.h"
#include "framework/abi/view.h"
#include "framework/support/objects/value.h"
#include "host/gui/hostgui.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"
#include "sandbox/pages/settings.h"
#include "sandbox/visitor.h"
#include "tests/fixtures/testfolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <fstream>
#include <random>

namespace e2e {

namespace {

namespace fs = std::filesystem;

constexpr const char* kIngestion = "/api/frontstage/release_ingestion";

/// What the scripted classes do and hear.
struct Script {
    std::string origin;
    std::string authorizeUrl;
    int openIndicators = 0;
    bool isCancelled = false;
    bool isPacking = false;
    std::set<std::string> copied; ///< names of files that are being copied
    std::size_t copiedBefore = 1; ///< as many, and copying is under way
    Moment moment = Moment::kSending;
    std::function<void()> action;

    void happen() {
        if (const auto now = std::exchange(action, nullptr)) {
            now();
        }
    }
};

Script g_script;

/// A person who signs in, in a browser of this process.
class Dialog final : public xbr::Object<xbr::IDialog> {
public:
    xbr::Result setTheme(xbr::ITheme*) noexcept override { return xbr::kOk; }
    xbr::Result setTranslationTable(xbr::ITranslationTable*) noexcept override { return xbr::kOk; }
    xbr::Result runModal(xbr::IView*, std::int32_t) noexcept override {
        const sandbox::Account account;
        sandbox::Visitor visitor(account.user, account.password, true);
        const std::string callback = visitor.authorize(g_script.authorizeUrl);
        QEventLoop loop;
        m_loop = &loop;
        XBRGetFileTypeRegistry()->openUrl(xbr::toText(callback));
        loop.exec();
        m_loop = nullptr;
        return xbr::kOk;
    }
    xbr::Result close() noexcept override {
        if (m_loop) {
            m_loop->quit();
        }
        return xbr::kOk;
    }

private:
    QEventLoop* m_loop = nullptr;
};

class Configuration final : public xbr::Object<xbr::IConfigurationStore> {
public:
    xbr::Result load(xbr::IAttributes* out, xbr::Text, xbr::Text, std::int32_t,
                     std::int32_t) noexcept override {
        for (const auto& [key, value] : {std::pair<const char*, std::string>{"ServerURL", g_script.origin},
                                         {"ConsumerKey", "brindlex-demo"},
                                         {"ConsumerSecret", "brindlex-demo-secret"},
                                         {"CallbackURL", "brindlex://authorize"}}) {
            out->set(xbr::toText(key), xbr::textValue(value));
        }
        return xbr::kOk;
    }
};

/// The indicator of a front end, which runs the event loop.
class Indicator final : public xbr::Object<xbr::IProgressIndicator, xbr::IProgress> {
public:
    void setTitle(xbr::Text) noexcept override {}
    void setOption(std::int32_t) noexcept override {}
    void begin() noexcept override {
        ++g_script.openIndicators;
        xbr::host::setWorkProgress(this);
    }
    void end() noexcept override {
        --g_script.openIndicators;
        xbr::host::setWorkProgress(nullptr);
    }
    void update(double, xbr::Text what) noexcept override {
        QCoreApplication::processEvents();
        if (what.length > 0 && !g_script.isPacking) {
            g_script.copied.insert(xbr::toString(what));
            if (g_script.moment == Moment::kCopying && g_script.copied.size() == g_script.copiedBefore) {
                g_script.happen();
            }
        } else if (what.length == 0) { // a folder begins to be packed
            g_script.isPacking = true;
        } else if (g_script.moment == Moment::kPacking) {
            g_script.happen();
        }
    }
    bool isCancelled() noexcept override { return g_script.isCancelled; }
};

class Song final : public xbr::Object<xbr::IUrlSource, xbr::IMediaAttributes> {
public:
    explicit Song(fs::path path) : m_path(std::move(path)) {}
    xbr::Result getUrl(xbr::IString** out) noexcept override {
        return xbr::giveText("file://" + m_path.string(), out);
    }
    xbr::Result getMediaAttributes(xbr::IAttributes* out) noexcept override {
        out->set(xbr::toText("Media:Title"), xbr::textValue(m_path.stem().string()));
        return xbr::kOk;
    }

private:
    fs::path m_path;
};

xbr::Ref<xbr::ObjectList> songsOf(const std::vector<fs::path>& files) {
    auto songs = xbr::make<xbr::ObjectList>();
    for (const auto& file : files) {
        songs->add(xbr::query<xbr::IObject>(static_cast<xbr::IUrlSource*>(xbr::make<Song>(file).get())));
    }
    return songs;
}

bool runUntil(const std::function<bool()>& condition) {
    return xbr::host::runUntil(condition, 30'000);
}

const xbr::ClassDescription kDialog{0, xbr::IDialog::kClassUid, {}, {}, {}, {}};
const xbr::ClassDescription kStore{0, xbr::IConfigurationStore::kClassUid, {}, {}, {}, {}};
const xbr::ClassDescription kIndicator{0, xbr::IProgressIndicator::kClassUid, {}, {}, {}, {}};

} // namespace

bool Panel::set(const char* path, const xbr::Value& value) {
    const auto parameter = xbr::Ref<xbr::IParameter>::share(xbr::findParameter(*m_controller, path));
    return parameter && parameter->setValue(value) == xbr::kOk;
}

void Panel::setMode(Mode mode) {
    set("TrackList/albumUpload", xbr::integerValue(mode));
}

void Panel::switchMode() {
    const auto* parameter = xbr::findParameter(*m_controller, "TrackList/albumUpload");
    setMode(xbr::integerOf(parameter->value()) == kAlbum ? kSingles : kAlbum);
}

xbr::Ref<xbr::IListViewModel> Panel::list() {
    return xbr::findObject<xbr::IListViewModel>(*m_controller, "TrackList/tracks");
}

void Panel::add(const std::vector<fs::path>& files) {
    list()->drop(songsOf(files).get());
}

void Panel::edit(std::int32_t row, const std::string& field, const std::string& text) {
    list()->setFocus(row);
    set(("TrackList/TrackProperties/" + field).c_str(), xbr::textValue(text));
}

void Panel::complete() {
    for (std::int32_t row = 0; row < list()->countRows(); ++row) {
        edit(row, "songArtist", "Ann");
        edit(row, "albumArtist", "Ann");
        set("TrackList/TrackProperties/primaryGenre", xbr::integerValue(1));
        if (xbr::integerOf(xbr::findParameter(*m_controller, "TrackList/albumUpload")->value()) == kAlbum) {
            edit(row, "albumTitle", "Album");
        }
    }
}

void Panel::remove(std::int32_t row) {
    list()->setFocus(row);
    list()->removeFocused();
}

std::vector<Panel::Track> Panel::tracks() {
    std::vector<Track> tracks;
    for (std::int32_t row = 0; row < list()->countRows(); ++row) {
        xbr::Ref<xbr::IObject> item;
        list()->getItem(row, item.out());
        const auto properties = xbr::query<xbr::IPropertySource>(item.get());
        const auto get = [&](const char* name) {
            xbr::Value value{};
            properties->getProperty(xbr::toText(name), &value);
            return value;
        };
        const std::string file(xbr::textOf(get("file")));
        tracks.push_back({file.substr(file.rfind('/') + 1), static_cast<State>(xbr::integerOf(get("state"))),
                          xbr::integerOf(get("uploading")) != 0, xbr::numberOf(get("progress"))});
    }
    return tracks;
}

bool Panel::clientFlag(const char* name) {
    const auto client = xbr::findObject<xbr::IPropertySource>(*m_controller, "Client");
    xbr::Value value{};
    client->getProperty(xbr::toText(name), &value);
    return xbr::integerOf(value) != 0;
}

bool Panel::isIdle() {
    const auto all = tracks();
    return !clientFlag("isBusy") &&
           std::none_of(all.begin(), all.end(), [](const Track& track) { return track.isUploading; });
}

PublishingStage::PublishingStage() {
    qputenv("BROWSER", "/bin/true");
    qunsetenv("DISPLAY");
    qputenv("TMPDIR", SmallDisk::place().c_str());
    g_script = {};
    g_script.origin = m_service.origin();
    g_script.authorizeUrl = m_service.authorizeUrl();
    xbr::host::setBrowserAnnouncer([](std::string_view) { return true; });
    xbr::host::registerGuiClasses();
    m_hostClasses->add(kDialog, xbr::creatorOf<Dialog>());
    m_hostClasses->add(kStore, xbr::creatorOf<Configuration>());
    m_hostClasses->add(kIndicator, xbr::creatorOf<Indicator>());
    XBRGetPlugInManager()->addFactory(m_hostClasses.get());
    EXPECT_EQ(m_library.load(), 1);
    m_programService = create<xbr::IProgramService>(*m_library.getFactory(), 0);
    m_programService->initialise(m_context.get());
    m_programService->getClasses(m_classes.out());
    open(m_first);
    open(m_second);
}

PublishingStage::~PublishingStage() {
    m_first->perform("Client/resetAuthorization"); // the next service does not know these tokens
    m_first.reset();
    m_second.reset();
    m_classes.reset();
    xbr::host::abortAllRequests();
    m_programService->terminate();
    m_programService.reset();
    m_library.unload();
    XBRGetPlugInManager()->removeFactory(m_hostClasses.get());
    xbr::host::unregisterGuiClasses();
    xbr::host::dropPostedMessages();
    xbr::host::removeTemporaryFolder();
}

void PublishingStage::open(std::unique_ptr<Panel>& panel) {
    panel.reset();
    panel = std::make_unique<Panel>(create<xbr::IController>(*m_classes, 1));
    signIn(*panel);
}

void PublishingStage::reopen(Panel& panel) {
    open(&panel == m_first.get() ? m_first : m_second);
}

void PublishingStage::signIn(Panel& panel) {
    if (!panel.isAuthorized()) {
        panel.perform("connect");
        EXPECT_TRUE(panel.isAuthorized());
    }
    EXPECT_TRUE(runUntil([&] { return panel.isIdle(); }));
}

void PublishingStage::signInAgain() {
    g_script.isCancelled = false;
    signIn(*m_first);
    signIn(*m_second);
}

fs::path PublishingStage::song(const std::string& name) {
    const fs::path path = m_service.folder() / "songs" / (name + ".wav");
    if (!fs::exists(path)) {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary);
        change(name);
    }
    return path;
}

void PublishingStage::change(const std::string& name) {
    static std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same songs in each run
    std::string bytes(300'000, '\0');
    std::generate(bytes.begin(), bytes.end(), [] { return static_cast<char>(random()); });
    std::ofstream(m_service.folder() / "songs" / (name + ".wav"), std::ios::binary) << bytes;
    m_contents[name + ".wav"].insert(std::move(bytes));
}

bool PublishingStage::wasEver(const std::string& file, const std::string& bytes) const {
    const auto found = m_contents.find(file);
    return found != m_contents.end() && found->second.contains(bytes);
}

void PublishingStage::prepare(Panel::Mode mode, const std::vector<std::string>& songs) {
    std::vector<fs::path> files;
    for (const auto& name : songs) {
        files.push_back(song(name));
    }
    for (auto& [panel, itsFiles] : {std::pair{m_first.get(), files}, {m_second.get(), {song("second")}}}) {
        panel->clear();
        panel->setMode(panel == m_first.get() ? mode : Panel::kSingles);
        panel->add(itsFiles);
        panel->complete();
    }
    g_script.copiedBefore = mode == Panel::kAlbum ? 2 : 1;
    g_script.isCancelled = false;
    m_sendingFault = R"("stall_ms": 200, "stall_after": 1000)";
    m_waitingFault = R"("delay_ms": 300)";
}

void PublishingStage::uploadAndAt(Moment moment, const std::function<void()>& action) {
    g_script.moment = moment;
    g_script.action = action;
    g_script.isPacking = false;
    g_script.copied.clear();
    if (moment == Moment::kSending) {
        fault(m_sendingFault);
    } else if (moment == Moment::kWaiting) {
        fault(m_waitingFault);
    }
    m_first->perform("upload");
    if (moment == Moment::kWaiting) {
        EXPECT_TRUE(runUntil([&] { return m_first->tracks().at(0).progress >= 1.0; }));
    }
    if (moment == Moment::kSending || moment == Moment::kWaiting) {
        g_script.happen();
    }
}

void PublishingStage::cancelPreparation() {
    g_script.isCancelled = true;
}

void PublishingStage::publish(const std::vector<fs::path>& songs) {
    const auto publisher = create<xbr::IPublisher>(*m_classes, 0);
    EXPECT_EQ(publisher->publish(songsOf(songs).get()), xbr::kOk);
}

void PublishingStage::fault(const std::string& what) {
    m_service.addFault(R"({"path": ")" + std::string(kIngestion) + R"(", )" + what + "}");
}

void PublishingStage::breakConnection(Moment moment) {
    m_sendingFault = R"("reset_after": 1000)";
    m_waitingFault = R"("delay_ms": 300, "truncate": true)";
    if (moment == Moment::kCopying || moment == Moment::kPacking) {
        fault(m_sendingFault);
    }
}

void PublishingStage::settle() {
    QElapsedTimer quiet;
    quiet.start();
    const bool isQuiet = runUntil([&] {
        if (g_script.openIndicators > 0 || !m_first->isIdle() || !m_second->isIdle()) {
            quiet.restart();
        }
        return quiet.elapsed() > 100;
    });
    EXPECT_TRUE(isQuiet) << "something moves for ever";
}

std::vector<std::string> PublishingStage::leftFiles() {
    xbr::Ref<xbr::IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    const std::string place = xbr::take(url).substr(std::string("file://").size());
    std::vector<std::string> left;
    for (const auto& entry : fs::recursive_directory_iterator(place)) {
        if (entry.is_regular_file()) {
            left.push_back(entry.path().string());
        }
    }
    return left;
}

} // namespace e2e
