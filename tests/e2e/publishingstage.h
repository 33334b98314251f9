#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/progress.h"
#include "framework/abi/system.h"
#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/modules/publishentry.h"
#include "host/app/publishing/upload/tracks.h"
#include "host/app/session/hostsession.h"
#include "host/base/fileurl.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"
#include "sandbox/pages/settings.h"
#include "sandbox/visitor.h"
#include "tests/fixtures/testfolder.h"
#include "tests/sandbox/runningservice.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <set>

namespace xbr::host::tests {

namespace fs = std::filesystem;

inline Ref<PublishedItems> itemsOf(const std::vector<fs::path>& files) {
    auto items = make<PublishedItems>();
    for (const auto& file : files) {
        auto media = make<Attributes>();
        media->set("Media:Title", file.stem().string());
        items->add(fileUrl(file.string()), std::move(media));
    }
    return items;
}

/// A panel of the extension, as its view uses it.
class Panel {
public:
    void set(const std::string& path, const Value& value) {
        Ref<IParameter>::share(findParameter(m_panel->controller(), path))->setValue(value);
    }
    void perform(const char* path) { set(path, integerValue(1)); }
    bool isAlbum() const { return m_panel->isAlbum(); }
    void setAlbum(bool isAlbum) { set(std::string(GadgetPanel::kAlbumMode), integerValue(isAlbum ? 1 : 0)); }

    /// Drops files on the list.
    void add(const std::vector<fs::path>& files) { m_panel->tracks()->drop(itemsOf(files).get()); }
    void edit(std::int32_t row, const std::string& field, const Value& value) {
        m_panel->tracks()->setFocus(row);
        set("TrackList/TrackProperties/" + field, value);
    }
    void remove(std::int32_t row) {
        m_panel->tracks()->setFocus(row);
        m_panel->tracks()->removeFocused();
    }

    /// Makes these songs the list, with what a release needs.
    void prepare(bool asAlbum, const std::vector<fs::path>& songs) {
        perform("TrackList/removeAll");
        setAlbum(asAlbum);
        add(songs);
        for (std::int32_t row = 0; row < std::ssize(songs); ++row) {
            edit(row, "songArtist", textValue("Ann"));
            edit(row, "albumArtist", textValue("Ann"));
            edit(row, "primaryGenre", integerValue(1));
            if (asAlbum) {
                edit(row, "albumTitle", textValue("Album"));
            }
        }
    }

    std::vector<TrackReport> tracks() { return m_tracks.reports(); }
    bool isIdle() { return !m_panel->isClient("isBusy") && !m_tracks.isUploading(); }
    void signIn() {
        if (!m_panel->isClient("isAuthorized")) {
            perform("connect");
            EXPECT_TRUE(m_panel->isClient("isAuthorized"));
        }
        EXPECT_TRUE(runUntil([this] { return isIdle(); }, 30'000));
    }

private:
    std::unique_ptr<GadgetPanel> m_panel = std::move(*GadgetPanel::open(findGadgets().front(), {}));
    TrackFollower m_tracks{m_panel->tracks(), [] {}, [](const TrackReport&) {}};
};

/// When in an upload something happens.
enum class Moment { kCopying, kPacking, kSending, kWaiting };

/// The built extension in a host that nobody looks at, with two panels, signed in to a running service, and
/// the songs that they send. Needs a keyring: a callback reaches the first panel only, the second one signs
/// in with the tokens that were stored then.
class PublishingStage final : private FrontEnd {
public:
    PublishingStage() {
        qunsetenv("DISPLAY");
        writeFile(m_service.folder() / "services.ini", m_service.settings());
        EXPECT_TRUE(m_session.start().empty());
        reopen(first);
        reopen(second);
    }
    PublishingStage(const PublishingStage&) = delete;
    PublishingStage& operator=(const PublishingStage&) = delete;
    ~PublishingStage() {
        first->perform("Client/resetAuthorization"); // the next service does not know these tokens
        first.reset();
        second.reset();
        abortAllRequests();
        dropPostedMessages();
    }

    fs::path inbox() const { return m_service.inbox(); }

    /// Makes a panel, and signs it in.
    void reopen(std::optional<Panel>& panel) {
        panel.reset();
        panel.emplace();
        panel->signIn();
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
        writeFile(song, bytes);
        m_contents[song.filename()].insert(std::move(bytes));
    }

    /// True when a file of that name had these bytes at some time.
    bool wasEver(const std::string& file, const std::string& bytes) const {
        const auto found = m_contents.find(file);
        return found != m_contents.end() && found->second.contains(bytes);
    }

    /// Fills the first panel's list with three songs, the second one's with one of its own.
    void prepare(bool asAlbum) {
        first->prepare(asAlbum, {song("a"), song("b"), song("c")});
        second->prepare(false, {song("second")});
        m_copiedBefore = asAlbum ? 2 : 1;
        m_isCancelled = false;
        m_sendingFault = R"("stall_ms": 200, "stall_after": 1000)";
        m_waitingFault = R"("delay_ms": 300)";
    }

    /// Performs "upload" in the first panel; `action` runs once, at that moment of the first release.
    void uploadAndAt(Moment moment, const std::function<void()>& action) {
        m_moment = moment;
        m_action = action;
        m_isPacking = false;
        m_copied.clear();
        if (moment == Moment::kSending) {
            fault(m_sendingFault);
        } else if (moment == Moment::kWaiting) {
            fault(m_waitingFault);
        }
        first->perform("upload");
        happenAt(Moment::kSending);
        if (moment == Moment::kWaiting) {
            EXPECT_TRUE(runUntil([this] { return first->tracks().at(0).progress >= 1.0; }, 30'000));
            happenAt(Moment::kWaiting);
        }
    }

    void cancelPreparation() { m_isCancelled = true; }
    static void publish(const std::vector<fs::path>& songs) {
        EXPECT_EQ(createPublisher(findPublishEntries().front())->publish(itemsOf(songs).get()), kOk);
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
        EXPECT_TRUE(runUntil(
            [this] { return m_session.activity().isQuiet() && first->isIdle() && second->isIdle(); }, 30'000))
            << "something moves for ever";
    }
    void signInAgain() {
        m_isCancelled = false;
        first->signIn();
        second->signIn();
    }

    /// Files that are still in the temporary folder.
    static std::vector<fs::path> leftFiles() {
        Ref<IString> url;
        XBRGetSystem()->getTemporaryFolder(url.out());
        std::vector<fs::path> left;
        for (const auto& entry : fs::recursive_directory_iterator(*localPath(take(url)))) {
            if (entry.is_regular_file() && entry.path().filename() != "xbrhost.lock") {
                left.push_back(entry.path());
            }
        }
        return left;
    }

    std::optional<Panel> first;
    std::optional<Panel> second;
    std::optional<FileSizeLimit> fullDisk; ///< while there is one, writing fails

private:
    /// A person who signs in, in a browser of this process.
    class Dialog final : public Object<IDialog> {
    public:
        explicit Dialog(const RunningService& service) : m_service(service) {}
        Result setTheme(ITheme*) noexcept override { return kOk; }
        Result setTranslationTable(ITranslationTable*) noexcept override { return kOk; }
        Result runModal(IView*, std::int32_t) noexcept override {
            const sandbox::Account account;
            const sandbox::Visitor visitor(account.user, account.password, true);
            XBRGetFileTypeRegistry()->openUrl(toText(visitor.authorize(m_service.authorizeUrl())));
            m_loop.exec();
            return kOk;
        }
        Result close() noexcept override {
            m_loop.quit();
            return kOk;
        }

    private:
        const RunningService& m_service;
        QEventLoop m_loop;
    };

    /// Runs the event loop, in which something happens.
    class Indicator final : public Object<IProgressIndicator, IProgress> {
    public:
        explicit Indicator(PublishingStage& stage) : m_stage(stage) {}
        void setTitle(Text) noexcept override {}
        void setOption(std::int32_t) noexcept override {}
        void begin() noexcept override {
            m_run.emplace(
                m_stage.m_session.activity(), Activity::Kind::kPreparing, [] {}, this);
        }
        void end() noexcept override { m_run.reset(); }
        void update(double, Text what) noexcept override { m_stage.prepared(toString(what)); }
        bool isCancelled() noexcept override { return m_stage.m_isCancelled; }

    private:
        PublishingStage& m_stage;
        std::optional<Activity::Run> m_run;
    };

    Ref<IObject> makeDialog(HostSession&) override { return query<IObject>(make<Dialog>(m_service).get()); }
    Ref<IObject> makeProgress(HostSession&) override {
        return query<IObject>(static_cast<IProgress*>(make<Indicator>(*this).get()));
    }
    bool announceBrowser(std::string_view) override { return true; }

    void happenAt(Moment now) {
        if (const auto happens = m_moment == now ? std::exchange(m_action, nullptr) : nullptr) {
            happens();
        }
    }
    void prepared(const std::string& what) {
        QCoreApplication::processEvents();
        if (what.empty()) { // a folder begins to be packed
            m_isPacking = true;
        } else if (m_isPacking) {
            happenAt(Moment::kPacking);
        } else if (m_copied.insert(what).second && m_copied.size() == m_copiedBefore) {
            happenAt(Moment::kCopying);
        }
    }
    void fault(const std::string& what) {
        m_service.addFault(R"({"path": "/api/frontstage/release_ingestion", )" + what + "}");
    }

    RunningService m_service;
    TestVariable m_variables[2] = {{"XBRHOST_CONFIG", m_service.folder() / "services.ini"},
                                   {"BROWSER", "/bin/true"}};
    HostSession m_session{*this, {BRINDLEX_MODULE, false, false}};
    bool m_isCancelled = false;
    bool m_isPacking = false;
    std::set<std::string> m_copied; ///< names of files that are being copied
    std::size_t m_copiedBefore = 1; ///< as many, and copying is under way
    Moment m_moment = Moment::kSending;
    std::function<void()> m_action;
    std::string m_sendingFault;
    std::string m_waitingFault;
    std::map<std::string, std::set<std::string>> m_contents; ///< by file name
};

} // namespace xbr::host::tests
