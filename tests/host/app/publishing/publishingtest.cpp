// Publishing through a panel that behaves as modules do: what is done in which order, and when it is over.

#include "host/app/publishing/publishing.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/text.h"
#include "host/app/session/hostsession.h"
#include "tests/fixtures/soundfiles.h"
#include "tests/fixtures/testfolder.h"
#include "tests/fixtures/wavefile.h"
#include "tests/host/app/fakefront.h"
#include "tests/host/app/publishing/fakepanel.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <optional>

namespace xbr::host {

namespace {

using testing::ElementsAre;

class PublishingTest : public testing::Test, protected PublishingListener {
protected:
    PublishingTest() {
        m_script.activity = &m_host.activity();
        m_settings = {true, ConfigurationResult::kRead, {}, {}, {}, "http://127.0.0.1:1/", {}, {}, {}};
        for (const char* name : {"a.wav", "b.wav", "c.wav"}) {
            const auto tags = infoChunk({{"IGNR", "Rock"}, {"IART", "Ann"}});
            m_files.push_back(m_folder.write(name, waveFile(tags)));
        }
    }

    /// Publishes the files; `act` runs once that has begun.
    Verdict publish(const std::function<void()>& act = {}) {
        const FakeModule module(m_script);
        const auto panel = GadgetPanel::open(findGadgets().front(), {});
        Publishing publishing(m_host.activity(), m_settings, **panel, *this);
        m_publishing = &publishing;
        m_verdict.reset();
        std::vector<SongFile> songs;
        m_wish.songs.clear();
        for (const std::string& file : m_files) {
            m_wish.songs.push_back({file, {}, {}, {}, 0});
            songs.push_back(readSongFile(file));
        }
        const PublishEntry entry = findPublishEntries().front();
        publishing.publish(entry, publishing.plan(entry, m_wish, songs));
        if (act) {
            act();
        }
        EXPECT_TRUE(runUntil([this] { return m_verdict.has_value(); }));
        runUntil([] { return false; }, 60); // nothing may follow
        return m_verdict.value_or(Verdict{});
    }

    void tracksKnown(const std::vector<TrackReport>& tracks) override { m_known = tracks; }
    void trackChanged(const TrackReport&) override { ++m_changes; }
    void ended(const Verdict& verdict) override {
        EXPECT_FALSE(m_verdict.has_value());
        m_verdict = verdict;
    }

    TestFolder m_folder;
    ConfigurationReport m_settings;
    FakeFront m_front;
    HostSession m_host{m_front, {}};
    FakeScript m_script;
    std::vector<std::string> m_files;
    ReleaseWish m_wish;
    Publishing* m_publishing = nullptr;
    std::vector<TrackReport> m_known;
    int m_changes = 0;
    std::optional<Verdict> m_verdict;
};

} // namespace

TEST_F(PublishingTest, everyTrackIsFollowedToItsEnd) {
    const std::function<void()> habits[] = {
        [] {},
        [this] { m_script.accountQuery = 300; },
        [this] { m_script.duringPreparation = [] { runUntil([] { return false; }, 150); }; },
    };
    for (const auto& habit : habits) {
        m_script.uploads = 0;
        m_changes = 0;
        habit();
        EXPECT_EQ(publish().sentence, "Published 3 songs as singles.");
        EXPECT_EQ(m_script.uploads, 3);
        EXPECT_EQ(m_known.size(), 3U);
        EXPECT_EQ(m_changes, 6); // each begins and ends
        EXPECT_EQ(m_script.albumUpload, 0);
    }
}

TEST_F(PublishingTest, nothingIsHandedOverThatThePlanForbids) {
    m_files.push_back(m_files.front());
    EXPECT_EQ(publish().cause, Cause::kSameFile);
    EXPECT_TRUE(m_script.published.empty());
}

TEST_F(PublishingTest, handsOverWhatThePlanSays) {
    m_script.genres = {" ", "Pop", "Rock"};
    m_wish.genre = "pOP";
    const std::string song = m_folder.path("a.aiff");
    writeSound(song, SF_FORMAT_AIFF | SF_FORMAT_PCM_16);
    m_files = {m_files.front(), song};
    m_wish.skipsIncomplete = true; // the sound has no artist
    EXPECT_EQ(publish().cause, Cause::kPublished);
    EXPECT_THAT(m_script.published, ElementsAre("a.wav|a|Ann|Pop"));
}

TEST_F(PublishingTest, whatIsInTheWayIsToldByItsCause) {
    const struct {
        std::function<void()> arrange;
        Cause cause;
    } cases[] = {
        {[this] { m_script.signsIn = false; }, Cause::kNotSignedIn},
        {[this] { m_settings.missingKeys = {"ConsumerKey"}; }, Cause::kNotSetUp},
        {[this] { m_script.preparesNothing = true; }, Cause::kNothingWaits},
        {[this] { m_script.isUploadEnabled = false; }, Cause::kNoModule},
    };
    const FakeScript fresh = m_script;
    const ConfigurationReport settings = m_settings;
    for (const auto& one : cases) {
        m_script = fresh;
        m_settings = settings;
        one.arrange();
        const Verdict verdict = publish();
        EXPECT_EQ(verdict.cause, one.cause) << verdict.sentence;
        EXPECT_EQ(m_script.uploads, 0);
    }
}

TEST_F(PublishingTest, aSongThatCouldNotBeCopiedIsNotPublished) {
    bool isFirst = true;
    m_script.duringPreparation = [&] {
        if (std::exchange(isFirst, false)) {
            const std::string target = "file://" + m_folder.path("a.wav/x.wav"); // below a file
            XBRGetFileSystem()->copyFile(toText("file://" + m_files[1]), toText(target));
        }
    };
    const Verdict verdict = publish();
    EXPECT_EQ(verdict.cause, Cause::kPartly) << verdict.sentence;
    EXPECT_EQ(verdict.songs[1].source, m_files[1]);
    EXPECT_NE(verdict.songs[1].cause, Cause::kPublished);
}

TEST_F(PublishingTest, anAlbumThatCannotFitIsNotBegun) {
    m_wish.mode = ReleaseMode::kAlbum;
    m_wish.albumTitle = "Night";
    m_wish.albumArtist = "Ann";
    m_script.duringConnect = [this] { // the song takes no room, its copy would
        std::filesystem::resize_file(m_files[1], std::uintmax_t{4} << 40U);
    };
    const Verdict verdict = publish();
    EXPECT_EQ(verdict.cause, Cause::kDiskFull) << verdict.sentence;
    EXPECT_EQ(m_script.uploads, 0);
}

TEST(Pace, guessesFromTenSecondsAndOnlyOnceItKnows) {
    static constexpr std::int64_t kMegabyte = 1000000;
    Pace pace;
    pace.begin(true, 50000);
    std::int64_t bytes = 0;
    const struct {
        std::int64_t until; // milliseconds
        std::int64_t perSecond;
        std::int64_t speed;   // as measured then
        std::int64_t seconds; // for 10 MB and a byte
    } steps[] = {{500, 2, -1, -1}, {2000, 2, 2, -1}, {4000, 2, 2, 6}, {20000, 4, 4, 3}, {40000, 0, 0, -1}};
    std::int64_t now = 50000;
    for (const auto& step : steps) {
        for (; now < 50000 + step.until; now += 250) {
            bytes += step.perSecond * kMegabyte / 4;
            pace.sent(bytes, now + 250);
        }
        EXPECT_EQ(pace.bytesPerSecond(now), step.speed < 0 ? -1 : step.speed * kMegabyte) << step.until;
        EXPECT_EQ(pace.secondsFor(10 * kMegabyte + 1, now), step.seconds) << step.until;
    }
    EXPECT_EQ(pace.quietSeconds(now), 20);
    pace.pause(now);
    pace.begin(false, now + 60000); // the time between two songs is no time of sending
    EXPECT_EQ(pace.bytesPerSecond(now + 60000), 0);
    EXPECT_EQ(pace.quietSeconds(now + 60000), 0);
}

TEST_F(PublishingTest, cancellingEndsItAtEveryStage) {
    const std::function<void()> stages[] = {
        [this] { m_publishing->stop(); },
        [this] { m_script.duringConnect = [this] { m_publishing->stop(); }; },
        [this] { m_script.duringPreparation = [this] { m_publishing->stop(); }; },
        [this] {
            EXPECT_TRUE(runUntil([this] { return m_changes > 0; })); // on its way
            m_publishing->stop();
        },
    };
    const FakeScript fresh = m_script;
    for (const auto& stage : stages) {
        m_script = fresh;
        m_changes = 0;
        EXPECT_EQ(publish(stage).code, ExitCode::kInterrupted);
    }
}

} // namespace xbr::host
