#include "host/app/publishing/publishsession.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/text.h"
#include "host/app/session/hostsession.h"
#include "tests/host/app/audio/soundfiles.h"
#include "tests/host/app/audio/wavefile.h"
#include "tests/host/app/fakefront.h"
#include "tests/host/app/publishing/fakepanel.h"
#include "tests/host/app/testfolder.h"

#include <QTimer>
#include <gmock/gmock.h>

#include <filesystem>

namespace xbr::host {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;

constexpr char kNowhere[] = "http://127.0.0.1:1/"; // nothing listens on this port

class Publishing : public testing::Test, protected PublishListener {
protected:
    Publishing() {
        *m_report = {true, ConfigurationResult::kRead, {}, {}, {}, kNowhere, {}, {}};
        for (const char* name : {"a.wav", "b.wav", "c.wav"}) {
            m_files.push_back(m_folder.write(name, waveFile(infoChunk({{"IGNR", "Rock"}}))));
        }
    }

    /// Publishes the files; `act` runs once the session has begun.
    PublishOutcome publish(const std::function<void(PublishSession&)>& act = {}) {
        m_script.activity = &m_host.activity();
        const FakeModule module(m_script);
        const auto panel = GadgetPanel::open(findGadgets().front(), {});
        PublishSession session(**panel, *m_report, m_host.activity(), *this);
        m_session = &session;
        for (const std::string& file : m_files) {
            m_plan.songs.push_back({file, {}, {}, {}, 0});
        }
        session.start(std::exchange(m_plan, {}));
        if (act) {
            act(session);
        }
        EXPECT_TRUE(runUntil([this] { return m_isFinished; }));
        runUntil([] { return false; }, 60); // nothing may follow
        return m_outcome;
    }

    void tracksKnown(const std::vector<TrackReport>& tracks) override { m_known = tracks.size(); }
    void trackChanged(const TrackReport&) override { ++m_changes; }
    void finished(const PublishOutcome& outcome) override {
        EXPECT_FALSE(m_isFinished);
        m_isFinished = true;
        m_outcome = outcome;
    }

    TestFolder m_folder;
    std::shared_ptr<ConfigurationReport> m_report = std::make_shared<ConfigurationReport>();
    FakeFront m_front;
    HostSession m_host{m_front, {}};
    FakeScript m_script;
    std::vector<std::string> m_files;
    ReleaseWish m_plan; ///< what is said beside the files
    PublishSession* m_session = nullptr;
    std::size_t m_known = 0;
    int m_changes = 0;
    bool m_isFinished = false;
    PublishOutcome m_outcome;
};

} // namespace

TEST_F(Publishing, everyTrackIsFollowedToItsEnd) {
    EXPECT_EQ(publish().result, PublishResult::kDone);
    EXPECT_EQ(m_script.uploads, 3);
    EXPECT_EQ(m_known, 3U);
    EXPECT_EQ(m_changes, 6); // each begins and ends
    EXPECT_EQ(m_script.albumUpload, 0);
    for (const TrackReport& track : m_outcome.tracks) {
        EXPECT_EQ(track.state, TrackState::kDone);
    }
}

TEST_F(Publishing, albumModeIsLeftOn) {
    m_plan.mode = ReleaseMode::kAlbum;
    EXPECT_EQ(publish().result, PublishResult::kDone);
    EXPECT_NE(m_script.albumUpload, 0);
}

TEST_F(Publishing, aSlowAccountQueryDoesNotSwallowTheUpload) {
    m_script.accountQuery = 300;
    EXPECT_EQ(publish().result, PublishResult::kDone);
}

TEST_F(Publishing, aLongPreparationIsNoEnd) {
    m_script.duringPreparation = [] { runUntil([] { return false; }, 150); };
    EXPECT_EQ(publish().result, PublishResult::kDone);
    EXPECT_EQ(m_script.uploads, 3);
}

TEST_F(Publishing, theResultFollowsTheStates) {
    using enum TrackState;
    const struct {
        std::vector<TrackState> answers;
        PublishResult result;
    } cases[] = {
        {{kDone, kMissingInformation, kDone}, PublishResult::kNotAllDone},
        {{kMissingInformation, kMissingInformation, kMissingInformation}, PublishResult::kInformationMissing},
        {{kDone, kFailed, kDone}, PublishResult::kUnreachable}, // the service of this test never answers
    };
    m_script.missing = {"albumArtist"};
    for (const auto& one : cases) {
        m_script.answers = one.answers;
        m_script.uploads = 0;
        m_isFinished = false;
        EXPECT_EQ(publish().result, one.result);
    }
    m_script.preparesNothing = true;
    m_isFinished = false;
    EXPECT_EQ(publish().result, PublishResult::kNotAllDone);
}

TEST_F(Publishing, whatIsMissingIsNamedPerTrack) {
    m_script.isUploadEnabled = false;
    m_script.missing = {"albumArtist", "songTitle"};
    m_files.resize(1);
    const PublishOutcome outcome = publish();
    EXPECT_EQ(outcome.result, PublishResult::kInformationMissing);
    EXPECT_THAT(outcome.incomplete,
                ElementsAre(AllOf(Field(&IncompleteTrack::title, "a.wav"),
                                  Field(&IncompleteTrack::fields, ElementsAre("albumArtist", "songTitle")))));
}

TEST_F(Publishing, problemsBeforeTheUpload) {
    const std::string other = m_folder.write("song.aiff", "FORM");
    m_folder.write("more/a.wav", waveFile());
    m_script.genres = {" ", "Pop", "Rock"};
    const struct {
        std::function<void()> arrange;
        PublishResult result;
        std::string detail;
    } cases[] = {
        {[&] {
             m_files = {m_files.front(), m_folder.path("none.wav")};
         },
         PublishResult::kFileProblem, "none.wav' is not there"},
        {[&] { m_files = {m_folder.path()}; }, PublishResult::kFileProblem, "is not a file"},
        {[&] { m_files = {m_folder.write("text.wav", "text")}; }, PublishResult::kFileProblem,
         "not an audio file"},
        {[&] { m_files = {other}; }, PublishResult::kFileProblem, "song.aiff' is not audio"},
        {[&] {
             m_files = {m_files.front(), m_folder.path("more/a.wav")};
             m_plan.mode = ReleaseMode::kAlbum;
         },
         PublishResult::kFileProblem, "have the same file name"},
        {[&] { m_plan.genre = "Rocl"; }, PublishResult::kWrongPlan, "did you mean 'Rock'?"},
        {[&] { m_script.signsIn = false; }, PublishResult::kUnreachable,
         "http://127.0.0.1:1 cannot be reached"},
        {[&] { m_report->serverUrl.clear(); }, PublishResult::kNotSignedIn, ""},
        {[&] { m_report->missingKeys = {"ConsumerKey"}; }, PublishResult::kNotConfigured, ""},
    };
    const auto files = m_files;
    for (const auto& one : cases) {
        m_files = files;
        m_isFinished = false;
        one.arrange();
        const PublishOutcome outcome = publish();
        EXPECT_EQ(outcome.result, one.result) << one.detail;
        EXPECT_THAT(outcome.detail, HasSubstr(one.detail));
        EXPECT_EQ(m_script.uploads, 0);
    }
}

TEST_F(Publishing, whatTheUserSaysWinsOverTheTags) {
    m_script.genres = {" ", "Pop", "Rock"};
    m_plan.genre = "pOP";
    m_plan.songs = {
        {m_folder.write("d.wav", waveFile(infoChunk({{"INAM", "Tag"}, {"IART", "Ann"}}))), "Said", {}, {}, 0},
        {m_files.front(), {}, "Bob", "rock", 0}};
    m_files.clear();
    EXPECT_EQ(publish().result, PublishResult::kDone);
    EXPECT_THAT(m_script.published, ElementsAre("d.wav|Said|Ann|Pop", "a.wav||Bob|Rock"));
}

TEST_F(Publishing, songsThatAreRenderedKeepTheirNames) {
    const std::string song = m_folder.path("a.aiff");
    writeSound(song, SF_FORMAT_AIFF | SF_FORMAT_PCM_16);
    m_files = {m_files.front(), song};
    const PublishOutcome outcome = publish();
    EXPECT_EQ(outcome.result, PublishResult::kDone) << outcome.detail;
    EXPECT_THAT(m_script.published, ElementsAre("a.wav|||Rock", "a%20(2).wav|||"));
    EXPECT_EQ(outcome.tracks[1].file, "file://" + song);
}

TEST_F(Publishing, tellsWhyNothingWasPrepared) {
    m_script.preparesNothing = true;
    const auto upload = [&](std::function<void()> meanwhile) {
        m_isFinished = false;
        m_script.duringConnect = std::move(meanwhile);
        return publish().detail;
    };
    EXPECT_EQ(upload({}), "");
    EXPECT_THAT(upload([&] { std::filesystem::remove(m_files[1]); }),
                HasSubstr("b.wav' is not there any more"));
    m_folder.write("b.wav", waveFile());
    m_script.duringUpload = [&] {
        const std::string target = "file://" + m_folder.path("a.wav/x.wav"); // below a file
        XBRGetFileSystem()->copyFile(toText("file://" + m_files[0]), toText(target));
    };
    EXPECT_THAT(upload({}), HasSubstr("a.wav' cannot be copied: Not a directory"));
}

TEST_F(Publishing, cancellingEndsItAtEveryStage) {
    const std::function<void(PublishSession&)> stages[] = {
        [](PublishSession& session) { session.cancel(); },
        [this](PublishSession&) { m_script.duringConnect = [this] { m_session->cancel(); }; },
        [this](PublishSession&) { m_script.duringPreparation = [this] { m_session->cancel(); }; },
        [this](PublishSession& session) {
            EXPECT_TRUE(runUntil([this] { return m_changes > 0; })); // on its way
            session.cancel();
        },
    };
    for (const auto& stage : stages) {
        m_script = {};
        m_changes = 0;
        m_isFinished = false;
        EXPECT_EQ(publish(stage).result, PublishResult::kCancelled);
    }
}

} // namespace xbr::host
