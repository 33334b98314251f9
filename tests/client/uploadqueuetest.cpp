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

    /// A list of tracks titled by one letter each, and nothing sent yet.
    void startWith(UploadMode mode, std::string_view titles) {
        signIn();
        manager->trackList().removeAll();
        manager->trackList().prepareMode(mode);
        for (const char title : titles) {
            addTrack(std::string(1, title));
        }
        host().web.sent.clear();
        host().files.onCopy = nullptr;
    }

    /// Titles of the songs whose audio is in the last request.
    static std::vector<std::string> sentAudio() {
        std::vector<std::string> titles;
        const std::string body = host().web.sent.empty() ? "" : host().web.sent.back().body;
        for (auto at = body.find("assets/"); at != std::string::npos; at = body.find("assets/", at + 1)) {
            const std::string title = body.substr(at + 7, body.find('.', at) - at - 7);
            EXPECT_THAT(body, testing::HasSubstr("assets/" + title + ".wav=audio of " + title + ";"));
            titles.push_back(title);
        }
        return titles;
    }
};

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
        const char* sent; ///< titles of the tracks that go, one after the other, when each is refused
    };
    for (const auto& [before, sent] :
         {Case{{2}, "a"}, Case{{3}, "a"}, Case{{1}, ""}, Case{{2, 1, 1}, ""}, Case{{1, 2, 1}, "b"},
          Case{{2, 2, 0}, "c"}, Case{{2, 3}, "b"}, Case{{0, 0}, "ab"}, Case{{0, 2, 2}, "abc"}}) {
        startWith(UploadMode::kSingles, "");
        for (std::size_t i = 0; i < before.size(); ++i) {
            addTrack(std::string(1, static_cast<char>('a' + i))).state =
                static_cast<TrackUploadState>(before[i]);
        }
        std::string titles;
        for (perform("upload"); host().web.isInFlight() && titles.size() <= before.size();) {
            titles += sentAudio().front();
            host().web.answer(500);
        }
        EXPECT_EQ(titles, sent) << testing::PrintToString(before);
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

/// However an upload ends, nothing of it is in the next release.
TEST_F(UploadQueueTest, WhatIsNotSentLeavesNothingForTheNextRelease) {
    struct Case {
        const char* name;
        std::function<void()> fault;
        std::function<void()> inTransfer; ///< none: nothing is sent
    };
    const Case cases[] = {
        {"file vanished", [&] { host().files.files.erase("file:///music/c.wav"); }, {}},
        {"copy failed",
         [&] {
             host().files.files["file:///tmp/host/Brindlex/payload/assets/c.wav"] = "old audio";
             host().files.uncopyable = {"file:///music/c.wav"};
         },
         {}},
        {"archive not created", [&] { host().packages.failsToCreate = true; }, {}},
        {"archive not written", [&] { host().packages.failsToFlush = true; }, {}},
        {"not started", [&] { host().web.refusesRequests = true; }, {}},
        {"cancelled", [&] { host().objects.cancelled = true; }, {}},
        {"aborted", [] {}, [] { host().web.abortInFlight(); }},
        {"signed out", [] {}, [&] { manager->client().resetAuthorization(Silence::kTold); }},
    };
    for (const auto mode : {UploadMode::kAlbum, UploadMode::kSingles}) {
        for (const auto& [name, fault, inTransfer] : cases) {
            SCOPED_TRACE(name);
            const bool isAlbum = mode == UploadMode::kAlbum;
            startWith(mode, isAlbum ? "abc" : "c");
            fault();
            perform("upload");
            if (inTransfer) {
                inTransfer();
                host().signals.pump();
            } else {
                EXPECT_TRUE(host().web.sent.empty());
                EXPECT_EQ(leftovers(), 0);
            }
            EXPECT_THAT(states(), testing::Each(inTransfer ? 2 : 0));
            EXPECT_EQ(manager->trackList().currentUploadItem(), nullptr);
            host().files.uncopyable.clear();
            host().packages.failsToCreate = host().packages.failsToFlush = false;
            host().web.refusesRequests = host().objects.cancelled = false;
            startWith(UploadMode::kSingles, "n");
            perform("upload");
            EXPECT_THAT(sentAudio(), ElementsAre("n"));
            host().web.answer(200);
            EXPECT_EQ(leftovers(), 0);
        }
    }
}

TEST_F(UploadQueueTest, AnOldPayloadThatCannotBeRemovedIsNotMixedIn) {
    startWith(UploadMode::kSingles, "a");
    host().files.files["file:///tmp/host/Brindlex/payload/assets/old.wav"] = "old audio";
    host().files.unremovable = {"file:///tmp/host/Brindlex/payload"};
    perform("upload");
    EXPECT_TRUE(host().web.sent.empty());
    host().files.unremovable.clear();
    perform("upload");
    EXPECT_THAT(sentAudio(), ElementsAre("a"));
}

TEST_F(UploadQueueTest, IndicatorIsShownWhilePreparing) {
    startWith(UploadMode::kSingles, "a");
    host().objects.log.clear();
    perform("upload");
    EXPECT_THAT(host().objects.log,
                ElementsAre("title Preparing Brindlex Upload", "option 1", "begin", "end"));
}

TEST_F(UploadQueueTest, NothingDoneWhilePreparingDoesHarm) {
    struct Case {
        const char* name;
        std::function<void()> action;
        std::size_t sent;
    };
    const Case cases[] = {
        {"upload", [&] { perform("upload"); }, 1},
        {"edited", [&] { trackAt(manager->trackList().model(), 0).metadata->songTitle = "other"; }, 1},
        {"removed", [&] { manager->trackList().removeAll(); }, 0},
        {"mode", [&] { manager->trackList().prepareMode(UploadMode::kAlbum); }, 0},
        {"signed out", [&] { manager->client().resetAuthorization(Silence::kTold); }, 0},
        {"panel closed", [&] { manager.reset(); }, 1}, // sent, and ended before a byte goes out
    };
    for (const auto& [name, action, sent] : cases) {
        SCOPED_TRACE(name);
        startWith(UploadMode::kSingles, "a");
        host().objects.onProgressUpdate = [&, action = action] {
            const auto once = std::exchange(host().objects.onProgressUpdate, nullptr); // this very function
            action();
        };
        perform("upload");
        EXPECT_EQ(host().web.sent.size(), sent);
        if (host().web.isInFlight()) {
            EXPECT_THAT(host().web.sent[0].body, testing::HasSubstr(R"("title":"a")"));
            host().web.answer(200);
            EXPECT_THAT(states(), ElementsAre(1));
        }
        host().signals.pump();
        EXPECT_EQ(leftovers(), 0);
    }
    EXPECT_EQ(Manager::current(), nullptr);
    EXPECT_FALSE(host().web.isInFlight());
}

/// A release is not mixed of what a track was before and after an edit.
TEST_F(UploadQueueTest, AnAlbumIsSentAsItWasWhenUploadWasPressed) {
    startWith(UploadMode::kAlbum, "ab");
    host().files.onCopy = [&] {
        for (const auto& track : tracksOf(manager->trackList().model())) {
            track->metadata->songArtist = "edited";
            track->metadata->albumTitle = "edited";
        }
    };
    perform("upload");
    ASSERT_EQ(host().web.sent.size(), 1U);
    EXPECT_THAT(host().web.sent[0].body, testing::Not(testing::HasSubstr("edited")));
}

TEST_F(UploadQueueTest, TheReplyIsJudgedByWhatWasSent) {
    auto& list = manager->trackList();
    struct Case {
        const char* name;
        std::function<void()> change;
        std::vector<int> states;       ///< after the reply
        std::vector<const char*> next; ///< what goes by itself afterwards
    };
    const auto publish = [&] {
        list.removeAll();
        list.prepareMode(UploadMode::kAlbum);
        addTrack("x");
        addTrack("y");
    };
    const std::pair<UploadMode, std::vector<Case>> groups[] = {
        {UploadMode::kAlbum,
         {{"added", [&] { addTrack("x", false); }, {1, 1, 0}, {}},
          {"removed", [&] { list.model().remove(0); }, {1}, {}},
          {"singles", [&] { list.prepareMode(UploadMode::kSingles); }, {1, 1}, {}},
          {"published", publish, {0, 0}, {}}}},
        {UploadMode::kSingles,
         {{"added", [&] { addTrack("x"); }, {1, 1, 1}, {"b", "x"}},
          {"removed", [&] { list.model().remove(0); }, {0}, {}},
          {"album", [&] { list.prepareMode(UploadMode::kAlbum); }, {1, 0}, {}},
          {"published", publish, {0, 0}, {}}}},
    };
    for (const auto& [mode, cases] : groups) {
        for (const auto& [name, change, after, next] : cases) {
            SCOPED_TRACE(name);
            startWith(mode, "ab");
            perform("upload");
            change();
            host().web.sent.clear();
            host().web.progress(xbr::floatValue(0.5));
            host().web.answer(200);
            std::vector<std::string> sent;
            while (host().web.isInFlight()) {
                sent.push_back(sentAudio().front());
                host().web.sent.clear();
                host().web.answer(200);
            }
            EXPECT_THAT(states(), testing::ElementsAreArray(after));
            EXPECT_THAT(sent, testing::ElementsAreArray(next));
            for (const auto& track : tracksOf(list.model())) {
                EXPECT_FALSE(track->uploading);
            }
        }
    }
}

TEST_F(UploadQueueTest, TracksThatCameLaterAreNeitherMarkedNorInProgress) {
    startWith(UploadMode::kAlbum, "ab");
    perform("upload");
    TrackItem& late = addTrack("x", false);
    host().web.progress(xbr::floatValue(0.5));
    EXPECT_EQ(late.progress, 0.0);
    late.metadata->songArtist.clear();
    host().web.answer(422, kMissing);
    EXPECT_FALSE(late.metadata->songArtistMissing);
    EXPECT_EQ(late.state, TrackUploadState::kNone);
}

TEST_F(UploadQueueTest, APanelThatWaitsMayBeClosed) {
    startWith(UploadMode::kSingles, "a");
    const auto first = std::exchange(manager, xbr::make<Manager>());
    startWith(UploadMode::kSingles, "b");
    first->findParameter(xbr::toText("upload"))->setValue(xbr::integerValue(1));
    perform("upload");
    manager = xbr::make<Manager>();
    startWith(UploadMode::kSingles, "c");
    perform("upload");
    EXPECT_TRUE(host().web.sent.empty()) << "the first one's is still on its way";
}

TEST_F(UploadQueueTest, ASecondPanelWaitsForItsTurn) {
    const std::pair<const char*, std::function<void(xbr::Ref<Manager>&)>> ends[] = {
        {"answered", [](auto&) { host().web.answer(200); }},
        {"aborted", [](auto&) { host().web.abortInFlight(); }},
        {"closed", [](auto& first) { first.reset(); }},
    };
    for (const bool isPreparing : {true, false}) {
        for (const auto& [name, end] : ends) {
            SCOPED_TRACE(name);
            manager = xbr::make<Manager>();
            startWith(UploadMode::kSingles, "a");
            auto first = std::exchange(manager, xbr::make<Manager>());
            startWith(UploadMode::kSingles, "b");
            const auto pressSecond = [&] {
                host().objects.onProgressUpdate = nullptr;
                perform("upload");
                perform("upload");
            };
            if (isPreparing) {
                host().objects.onProgressUpdate = [pressSecond] {
                    const auto press = pressSecond; // which replaces this very function
                    press();
                };
            }
            first->findParameter(xbr::toText("upload"))->setValue(xbr::integerValue(1));
            if (!isPreparing) {
                pressSecond();
            }
            EXPECT_THAT(sentAudio(), ElementsAre("a"));
            EXPECT_EQ(host().web.sent.size(), 1U);
            host().signals.posts.clear();
            end(first);
            host().signals.pump();
            EXPECT_EQ(host().signals.posts, std::vector<std::string>{"uploadNext -1"}) << "told once";
            EXPECT_EQ(host().web.sent.size(), 2U);
            EXPECT_THAT(sentAudio(), ElementsAre("b"));
            host().web.answer(200);
            EXPECT_THAT(states(), ElementsAre(1));
            EXPECT_EQ(leftovers(), 0);
        }
    }
}

/// What follows a reply is the business of the mode that was sent, not of the one that the user chose
/// meanwhile.
TEST_F(UploadQueueTest, TheSentModeDecidesWhatFollows) {
    const struct {
        UploadMode sent;
        UploadMode chosen;
        int first; ///< of two complete tracks, after the service missed something
        std::vector<std::string> posts;
    } cases[] = {{UploadMode::kSingles, UploadMode::kAlbum, 3, {"uploadNext -1"}},
                 {UploadMode::kAlbum, UploadMode::kSingles, 0, {}}};
    for (const auto& [sent, chosen, first, posts] : cases) {
        startWith(sent, "ab");
        perform("upload");
        manager->trackList().prepareMode(chosen);
        host().signals.posts.clear();
        host().web.answer(422, kMissing);
        EXPECT_THAT(states(), ElementsAre(first, 0));
        EXPECT_EQ(host().signals.posts, posts);
    }
}

TEST_F(UploadQueueTest, NothingIsPreparedThatCannotBeSent) {
    startWith(UploadMode::kSingles, "ab");
    manager->client().resetAuthorization(Silence::kSilent);
    host().objects.log.clear();
    xbr::post(*manager, "uploadNext", -1);
    host().signals.pump();
    EXPECT_TRUE(host().objects.log.empty());
}

/// Closes the panel in the middle of what it is told.
class Closing final : public xbr::Object<xbr::IObserver> {
public:
    explicit Closing(xbr::Ref<Manager>& panel) : m_panel(&panel) {}
    void notify(xbr::ISubject*, xbr::IMessage*) noexcept override { m_panel->reset(); }

private:
    xbr::Ref<Manager>* m_panel;
};

TEST_F(UploadQueueTest, ThePanelMayGoWhileItHearsTheReply) {
    startWith(UploadMode::kSingles, "ab");
    perform("upload");
    const auto closing = xbr::make<Closing>(manager);
    xbr::ISubject* list = &manager->trackList();
    XBRGetSignalHandler()->addObserver(list, closing.get());
    host().web.answer(200);
    EXPECT_FALSE(manager);
    XBRGetSignalHandler()->removeObserver(list, closing.get());
    host().signals.pump();
    EXPECT_EQ(leftovers(), 0);
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
