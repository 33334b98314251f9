#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/pluginmanager.h"
#include "framework/abi/progress.h"
#include "framework/abi/publisher.h"
#include "framework/abi/system.h"
#include "framework/abi/view.h"
#include "framework/support/parts/classfactory.h"
#include "host/gui/hostgui.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"
#include "sandbox/pages/settings.h"
#include "sandbox/visitor.h"
#include "tests/e2e/builtmodule.h"
#include "tests/fixtures/testfolder.h"
#include "tests/sandbox/runningservice.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <map>
#include <optional>
#include <random>
#include <set>

namespace e2e {

namespace fs = std::filesystem;

/// When in an upload something happens.
enum class Moment { kCopying, kPacking, kSending, kWaiting };

/// What the scripted classes do and hear.
struct Script {
    const RunningService* service = nullptr;
    int openIndicators = 0;
    bool isCancelled = false;
    bool isPacking = false;
    std::set<std::string> copied; ///< names of files that are being copied
    std::size_t copiedBefore = 1; ///< as many, and copying is under way
    Moment moment = Moment::kSending;
    std::function<void()> action;

    void happenAt(Moment now) {
        if (const auto happens = moment == now ? std::exchange(action, nullptr) : nullptr) {
            happens();
        }
    }
};

inline Script g_script;

/// A person who signs in, in a browser of this process.
class Dialog final : public xbr::Object<xbr::IDialog> {
public:
    xbr::Result setTheme(xbr::ITheme*) noexcept override { return xbr::kOk; }
    xbr::Result setTranslationTable(xbr::ITranslationTable*) noexcept override { return xbr::kOk; }
    xbr::Result runModal(xbr::IView*, std::int32_t) noexcept override {
        const sandbox::Account account;
        sandbox::Visitor visitor(account.user, account.password, true);
        const std::string callback = visitor.authorize(g_script.service->authorizeUrl());
        XBRGetFileTypeRegistry()->openUrl(xbr::toText(callback));
        m_loop.exec();
        return xbr::kOk;
    }
    xbr::Result close() noexcept override {
        m_loop.quit();
        return xbr::kOk;
    }

private:
    QEventLoop m_loop;
};

class Configuration final : public xbr::Object<xbr::IConfigurationStore> {
public:
    xbr::Result load(xbr::IAttributes* out, xbr::Text, xbr::Text, std::int32_t,
                     std::int32_t) noexcept override {
        for (const auto& [key, value] : {std::pair{"ServerURL", g_script.service->origin()},
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
        if (what.length == 0) { // a folder begins to be packed
            g_script.isPacking = true;
        } else if (g_script.isPacking) {
            g_script.happenAt(Moment::kPacking);
        } else if (g_script.copied.insert(xbr::toString(what)).second &&
                   g_script.copied.size() == g_script.copiedBefore) {
            g_script.happenAt(Moment::kCopying);
        }
    }
    bool isCancelled() noexcept override { return g_script.isCancelled; }
};

inline const xbr::ClassDescription kDialog{0, xbr::IDialog::kClassUid, {}, {}, {}, {}};
inline const xbr::ClassDescription kStore{0, xbr::IConfigurationStore::kClassUid, {}, {}, {}, {}};
inline const xbr::ClassDescription kIndicator{0, xbr::IProgressIndicator::kClassUid, {}, {}, {}, {}};

/// Two panels, signed in to a running service, and the songs that they send. Needs a keyring: a callback
/// reaches the first panel only, the second one signs in with the tokens that were stored then.
class PublishingStage {
public:
    PublishingStage() {
        qputenv("BROWSER", "/bin/true");
        qunsetenv("DISPLAY");
        g_script = {};
        g_script.service = &m_service;
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
        reopen(first);
        reopen(second);
    }
    PublishingStage(const PublishingStage&) = delete;
    PublishingStage& operator=(const PublishingStage&) = delete;
    ~PublishingStage() {
        first->perform("Client/resetAuthorization"); // the next service does not know these tokens
        first.reset();
        second.reset();
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

    fs::path inbox() const { return m_service.inbox(); }

    /// Makes a panel, and signs it in.
    void reopen(std::optional<Panel>& panel) {
        panel.reset();
        panel.emplace(create<xbr::IController>(*m_classes, 1));
        signIn(*panel);
    }

    /// A song of that name, written when it is first asked for.
    fs::path song(const std::string& name) {
        const fs::path path = m_service.folder() / "songs" / (name + ".wav");
        if (!fs::exists(path)) {
            change(path);
        }
        return path;
    }

    /// Writes to a song.
    void change(const fs::path& song) {
        static std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same songs in each run
        std::string bytes(300'000, '\0');
        std::generate(bytes.begin(), bytes.end(), [] { return static_cast<char>(random()); });
        xbr::host::writeFile(song, bytes);
        m_contents[song.filename()].insert(std::move(bytes));
    }

    /// True when a file of that name had these bytes at some time.
    bool wasEver(const std::string& file, const std::string& bytes) const {
        const auto found = m_contents.find(file);
        return found != m_contents.end() && found->second.contains(bytes);
    }

    /// Fills the first panel's list with three songs, the second one's with one of its own.
    void prepare(Panel::Mode mode) {
        const auto fill = [](Panel& panel, Panel::Mode itsMode, const std::vector<fs::path>& songs) {
            panel.clear();
            panel.setMode(itsMode);
            panel.add(songs);
            panel.complete();
        };
        fill(*first, mode, {song("a"), song("b"), song("c")});
        fill(*second, Panel::kSingles, {song("second")});
        g_script.copiedBefore = mode == Panel::kAlbum ? 2 : 1;
        g_script.isCancelled = false;
        m_sendingFault = R"("stall_ms": 200, "stall_after": 1000)";
        m_waitingFault = R"("delay_ms": 300)";
    }

    /// Performs "upload" in the first panel; `action` runs once, at that moment of the first release.
    void uploadAndAt(Moment moment, const std::function<void()>& action) {
        g_script.moment = moment;
        g_script.action = action;
        g_script.isPacking = false;
        g_script.copied.clear();
        if (moment == Moment::kSending) {
            fault(m_sendingFault);
        } else if (moment == Moment::kWaiting) {
            fault(m_waitingFault);
        }
        first->perform("upload");
        g_script.happenAt(Moment::kSending);
        if (moment == Moment::kWaiting) {
            EXPECT_TRUE(runUntil([&] { return first->tracks().at(0).progress >= 1.0; }));
            g_script.happenAt(Moment::kWaiting);
        }
    }

    static void cancelPreparation() { g_script.isCancelled = true; }
    void publish(const std::vector<fs::path>& songs) {
        const auto publisher = create<xbr::IPublisher>(*m_classes, 0);
        EXPECT_EQ(publisher->publish(songsOf(songs).get()), xbr::kOk);
    }

    /// The connection of the next upload breaks: before its body is in, or instead of the reply that is
    /// awaited.
    void breakConnection(Moment moment) {
        m_sendingFault = R"("reset_after": 1000)";
        m_waitingFault = R"("delay_ms": 300, "truncate": true)";
        if (moment == Moment::kCopying || moment == Moment::kPacking) {
            fault(m_sendingFault);
        }
    }

    /// Runs the event loop until nothing moves any more.
    void settle() {
        QElapsedTimer quiet;
        quiet.start();
        const bool isQuiet = runUntil([&] {
            if (g_script.openIndicators > 0 || !first->isIdle() || !second->isIdle()) {
                quiet.restart();
            }
            return quiet.elapsed() > 100;
        });
        EXPECT_TRUE(isQuiet) << "something moves for ever";
    }
    void signInAgain() {
        g_script.isCancelled = false;
        signIn(*first);
        signIn(*second);
    }

    /// Files that are still in the temporary folder.
    static std::vector<fs::path> leftFiles() {
        xbr::Ref<xbr::IString> url;
        XBRGetSystem()->getTemporaryFolder(url.out());
        std::vector<fs::path> left;
        for (const auto& entry :
             fs::recursive_directory_iterator(xbr::take(url).substr(std::string("file://").size()))) {
            if (entry.is_regular_file()) {
                left.push_back(entry.path());
            }
        }
        return left;
    }

    std::optional<Panel> first;
    std::optional<Panel> second;
    std::optional<xbr::host::FileSizeLimit> fullDisk; ///< while there is one, writing fails

private:
    static bool runUntil(const std::function<bool()>& condition) {
        return xbr::host::runUntil(condition, 30'000);
    }
    static void signIn(Panel& panel) {
        if (!panel.isAuthorized()) {
            panel.perform("connect");
            EXPECT_TRUE(panel.isAuthorized());
        }
        EXPECT_TRUE(runUntil([&] { return panel.isIdle(); }));
    }
    void fault(const std::string& what) {
        m_service.addFault(R"({"path": "/api/frontstage/release_ingestion", )" + what + "}");
    }

    RunningService m_service;
    std::string m_sendingFault;
    std::string m_waitingFault;
    std::map<std::string, std::set<std::string>> m_contents; ///< by file name
    xbr::Ref<xbr::ClassFactory> m_hostClasses = xbr::make<xbr::ClassFactory>();
    Library m_library;
    xbr::Ref<Context> m_context = xbr::make<Context>();
    xbr::Ref<xbr::IProgramService> m_programService;
    xbr::Ref<xbr::IClassFactory> m_classes;
};

} // namespace e2e
