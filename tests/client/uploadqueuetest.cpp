#include "tests/client/clientfixture.h"

#include <gmock/gmock.h>

namespace brindlex {

namespace {

using fakehost::host;
using testing::ElementsAre;

constexpr const char* kMissing = R"({"errors":"Release did not contain a required property: 'name'"})";

class UploadQueueTest : public ClientFixture {
protected:
    UploadQueueTest() {
        signIn();
        host().web.sent.clear();
    }
};

TEST_F(UploadQueueTest, SendsSinglesOneAfterTheOther) {
    addTrack("a");
    addTrack("b");
    addTrack("c");
    perform("upload");
    EXPECT_EQ(host().web.sent.size(), 1U);
    EXPECT_EQ(host().web.sent[0].url, "https://service/api/frontstage/release_ingestion");
    EXPECT_EQ(host().web.sent[0].headers.at("Authorization"), "Bearer A");
    host().web.progress(xbr::floatValue(0.25));
    EXPECT_EQ(trackAt(manager->trackList().model(), 0).progress, 0.25);
    EXPECT_EQ(trackAt(manager->trackList().model(), 1).progress, 0.0);
    host().web.answer(201);
    trackAt(manager->trackList().model(), 1).metadata->songArtist.clear();
    host().web.answer(422, kMissing);
    EXPECT_TRUE(trackAt(manager->trackList().model(), 1).metadata->songArtistMissing);
    EXPECT_FALSE(trackAt(manager->trackList().model(), 1).metadata->songTitleMissing);
    EXPECT_TRUE(trackAt(manager->trackList().model(), 2).uploading);
    host().web.answer(200);
    EXPECT_THAT(states(), ElementsAre(1, 3, 1));
    EXPECT_EQ(host().signals.posts, std::vector<std::string>(3, "uploadNext -1"));
    EXPECT_EQ(host().web.sent.size(), 3U);
    EXPECT_THAT(host().web.sent[2].body, testing::HasSubstr("assets/c.wav=audio of c;"));
    EXPECT_EQ(leftovers(), 0);
}

TEST_F(UploadQueueTest, SendsAnAlbumInOneGo) {
    manager->trackList().prepareMode(UploadMode::kAlbum);
    addTrack("a");
    addTrack("b", false).metadata->songArtist = "";
    perform("upload");
    ASSERT_EQ(host().web.sent.size(), 1U);
    EXPECT_THAT(host().web.sent[0].body, testing::HasSubstr("assets/b.wav=audio of b;"));
    EXPECT_TRUE(trackAt(manager->trackList().model(), 0).uploading);
    EXPECT_FALSE(manager->trackList().findParameter(xbr::toText("removeAll"))->isEnabled());
    host().web.progress(xbr::integerValue(1));
    EXPECT_EQ(trackAt(manager->trackList().model(), 1).progress, 1.0);
    host().web.answer(422, kMissing);
    EXPECT_THAT(states(), ElementsAre(0, 3)) << "the complete one goes again";
    EXPECT_TRUE(trackAt(manager->trackList().model(), 1).metadata->songArtistMissing);
    EXPECT_FALSE(trackAt(manager->trackList().model(), 0).metadata->songArtistMissing);
    perform("upload");
    EXPECT_FALSE(trackAt(manager->trackList().model(), 1).metadata->songArtistMissing)
        << "marks go with a new try";
    host().web.answer(500);
    EXPECT_THAT(states(), ElementsAre(2, 2));
    perform("upload");
    EXPECT_FALSE(host().web.isInFlight()) << "no track of the album waits";
}

TEST_F(UploadQueueTest, PicksTheNextTrackByItsState) {
    struct Case {
        std::vector<int> states;
        const char* sent; ///< title of the track that goes first, or nothing
    };
    for (const auto& [before, sent] : {Case{{2}, "a"}, Case{{3}, "a"}, Case{{1}, ""}, Case{{2, 1, 1}, ""},
                                       Case{{1, 2, 1}, "b"}, Case{{2, 2, 0}, "c"}, Case{{2, 3}, "b"}}) {
        manager->trackList().removeAll();
        host().web.sent.clear();
        for (std::size_t i = 0; i < before.size(); ++i) {
            addTrack(std::string(1, static_cast<char>('a' + i))).state =
                static_cast<TrackUploadState>(before[i]);
        }
        perform("upload");
        ASSERT_EQ(host().web.sent.size(), *sent ? 1U : 0U) << testing::PrintToString(before);
        if (*sent) {
            EXPECT_THAT(host().web.sent[0].body, testing::HasSubstr(std::string("audio of ") + sent));
            while (host().web.isInFlight()) {
                host().web.answer(200);
            }
        }
    }
}

TEST_F(UploadQueueTest, JudgesTheReply) {
    struct Case {
        std::int32_t status;
        const char* body;
        int state;
    };
    for (const auto& [status, body, state] :
         {Case{200, "", 1}, Case{299, "x", 1}, Case{300, "", 2}, Case{0, "", 2}, Case{401, "", 2},
          Case{400, "text", 2}, Case{400, R"({"errors":"other"})", 2},
          Case{400, R"({"errors":["did not contain a required property"]})", 2}, Case{422, kMissing, 3}}) {
        manager->trackList().removeAll();
        addTrack("a");
        perform("upload");
        host().web.answer(status, body);
        EXPECT_THAT(states(), ElementsAre(state)) << status << body;
        EXPECT_FALSE(host().web.isInFlight()) << "a list of one is not continued";
        EXPECT_EQ(host().signals.posts, status == 401 ? std::vector<std::string>{"refreshAccessToken 0"}
                                                      : std::vector<std::string>{});
        host().signals.posts.clear();
        EXPECT_EQ(leftovers(), 0);
    }
}

TEST_F(UploadQueueTest, CancelledPreparationSendsNothing) {
    addTrack("a");
    host().objects.cancelled = true;
    perform("upload");
    EXPECT_TRUE(host().web.sent.empty());
    EXPECT_THAT(states(), ElementsAre(0));
    EXPECT_EQ(leftovers(), 0);
    EXPECT_THAT(host().objects.log, testing::IsSupersetOf({"title Preparing Brindlex Upload", "option 1"}));
    EXPECT_EQ(host().objects.log.back(), "end");
}

TEST_F(UploadQueueTest, FileThatVanishedLeavesEverythingAsItWas) {
    addTrack("a");
    host().files.files.erase("file:///music/a.wav");
    perform("upload");
    EXPECT_TRUE(host().web.sent.empty());
    EXPECT_THAT(states(), ElementsAre(0));
    EXPECT_TRUE(isEnabled("upload"));
}

TEST_F(UploadQueueTest, NothingDoneWhilePreparingDoesHarm) {
    struct Case {
        std::function<void()> action;
        std::size_t sent;
    };
    const Case cases[] = {
        {[&] { perform("upload"); }, 1},
        {[&] { manager->trackList().removeAll(); }, 0},
        {[&] { manager->trackList().prepareMode(UploadMode::kAlbum); }, 0},
        {[&] { manager->client().resetAuthorization(Silence::kTold); }, 0},
        {[&] { manager.reset(); }, 1}, // sent, and ended with the panel before a byte goes out
    };
    for (const auto& [action, sent] : cases) {
        signIn();
        manager->trackList().removeAll();
        manager->trackList().prepareMode(UploadMode::kSingles);
        addTrack("a");
        host().web.sent.clear();
        host().objects.onProgressUpdate = [&] {
            const auto once = std::exchange(host().objects.onProgressUpdate, nullptr); // this very function
            action();
        };
        perform("upload");
        EXPECT_EQ(host().web.sent.size(), sent);
        if (host().web.isInFlight()) {
            host().web.answer(200);
            EXPECT_THAT(states(), ElementsAre(1));
        }
        host().signals.pump();
    }
    EXPECT_EQ(Manager::current(), nullptr);
    EXPECT_FALSE(host().web.isInFlight());
    EXPECT_EQ(leftovers(), 0);
}

TEST_F(UploadQueueTest, SigningOutInTheMiddleFailsTheTransfer) {
    addTrack("a");
    addTrack("b");
    perform("upload");
    manager->client().resetAuthorization(Silence::kTold);
    host().signals.pump();
    EXPECT_THAT(states(), ElementsAre(2, 0));
    EXPECT_EQ(manager->trackList().currentUploadItem(), nullptr);
    EXPECT_EQ(host().web.sent.size(), 1U) << "an aborted transfer is not followed by the next";
}

TEST_F(UploadQueueTest, UnloadingInTheMiddleIsSilent) {
    addTrack("a");
    perform("upload");
    manager.reset();
    EXPECT_FALSE(host().web.isInFlight());
    EXPECT_EQ(leftovers(), 0) << "the next release must not find this one's audio";
    module.reset();
    host().signals.pump();
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace

} // namespace brindlex
