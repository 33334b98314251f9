#include "tests/client/clientfixture.h"

namespace brindlex {

namespace {

using testing::HasSubstr;
using testing::Not;
using Act = std::function<void()>;

constexpr const char* kMissing = R"({"errors":"Release did not contain a required property: 'name'"})";
constexpr auto kAlbum = UploadMode::kAlbum;
constexpr auto kSingles = UploadMode::kSingles;

class UploadQueueTest : public ClientFixture {
protected:
    UploadQueueTest() { startWith(kSingles, ""); }

    /// A list of tracks titled by one letter each, and nothing sent yet.
    void startWith(UploadMode mode, std::string_view titles) {
        signIn();
        list().removeAll();
        list().prepareMode(mode);
        for (const char title : titles) {
            addTrack(std::string(1, title));
        }
        host().web.sent.clear();
        host().signals.posts.clear();
        host().objects.log.clear();
    }

    static std::string packed(const std::string& title) {
        return "assets/" + title + ".wav=audio of " + title + ";";
    }

    /// Titles of the songs whose audio is in the last request.
    static std::string sentAudio() {
        std::string titles;
        const std::string body = host().web.sent.empty() ? "" : host().web.sent.back().body;
        for (auto at = body.find("assets/"); at != std::string::npos; at = body.find("assets/", at + 1)) {
            const std::string title = body.substr(at + 7, body.find('.', at) - at - 7);
            EXPECT_THAT(body, HasSubstr(packed(title)));
            titles += title;
        }
        return titles;
    }

    /// Titles of the tracks that go, one after the other, when each is answered like this.
    static std::string sentWhile(std::int32_t answer) {
        std::string titles;
        while (host().web.isInFlight() && titles.size() < 9) {
            titles += sentAudio();
            host().web.answer(answer);
        }
        return titles;
    }
};

TEST_F(UploadQueueTest, SendsAnAlbumInOneGo) {
    startWith(kAlbum, "a");
    addTrack("b", false).metadata->songArtist = "";
    perform("upload");
    ASSERT_EQ(host().web.sent.size(), 1U);
    EXPECT_EQ(sentAudio(), "ab");
    EXPECT_THAT(host().objects.log,
                ElementsAre("title Preparing Brindlex Upload", "option 1", "begin", "end"));
    EXPECT_TRUE(track(0).uploading);
    EXPECT_FALSE(list().findParameter(xbr::toText("removeAll"))->isEnabled());
    TrackItem& late = addTrack("x", false);
    late.metadata->songArtist = "";
    host().web.progress(xbr::integerValue(1));
    EXPECT_EQ(track(1).progress, 1.0);
    EXPECT_EQ(late.progress, 0.0);
    host().web.answer(422, kMissing);
    EXPECT_THAT(states(), ElementsAre(0, 3, 0)) << "the complete one goes again";
    EXPECT_TRUE(track(1).metadata->songArtistMissing);
    EXPECT_FALSE(track(0).metadata->songArtistMissing || late.metadata->songArtistMissing);
    list().model().remove(2);
    perform("upload");
    EXPECT_FALSE(track(1).metadata->songArtistMissing) << "marks go with a new try";
    host().web.answer(500);
    EXPECT_THAT(states(), ElementsAre(2, 2));
    perform("upload");
    EXPECT_FALSE(host().web.isInFlight()) << "no track of the album waits";
}

TEST_F(UploadQueueTest, PicksTheNextTrackByItsState) {
    for (const auto& [before, sent] : Rows<std::vector<int>, const char*>{{{2}, "a"},
                                                                          {{3}, "a"},
                                                                          {{1}, ""},
                                                                          {{2, 1, 1}, ""},
                                                                          {{1, 2, 1}, "b"},
                                                                          {{2, 2, 0}, "c"},
                                                                          {{2, 3}, "b"},
                                                                          {{0, 0}, "ab"},
                                                                          {{0, 2, 2}, "abc"}}) {
        startWith(kSingles, std::string_view("abc").substr(0, before.size()));
        for (std::size_t i = 0; i < before.size(); ++i) {
            track(i).state = static_cast<TrackUploadState>(before[i]);
        }
        perform("upload");
        EXPECT_EQ(sentWhile(500), sent) << testing::PrintToString(before);
    }
}

TEST_F(UploadQueueTest, JudgesTheReply) {
    for (const auto& [status, body, state] : Rows<int, const char*, int>{
             {200, "", 1},
             {299, "x", 1},
             {300, "", 2},
             {0, "", 2},
             {401, "", 2},
             {400, "text", 2},
             {400, R"({"errors":"other"})", 2},
             {400, R"({"errors":["did not contain a required property"]})", 2},
             {422, kMissing, 3},
         }) {
        startWith(kSingles, "a");
        perform("upload");
        host().web.answer(status, body);
        EXPECT_THAT(states(), ElementsAre(state)) << status << body;
        EXPECT_FALSE(host().web.isInFlight()) << "a list of one is not continued";
        EXPECT_EQ(host().signals.posts, std::vector<std::string>(status == 401, "refreshAccessToken 0"));
        EXPECT_EQ(leftovers(), 0);
    }
}

/// However an upload ends, nothing of it is in the next release.
TEST_F(UploadQueueTest, WhatIsNotSentLeavesNothingForTheNextRelease) {
    const std::string old = "file:///tmp/host/Brindlex/payload/assets/";
    const auto failing = [](const char* call) { return [call] { host().failing = {call}; }; };
    // What goes wrong before the transfer, and what in it.
    for (const auto& [name, fault, inTransfer] : Rows<const char*, Act, Act>{
             {"file vanished", [&] { host().files.files.erase("file:///music/c.wav"); }, {}},
             {"copy failed",
              [&] {
                  host().files.files[old + "c.wav"] = "old audio";
                  host().failing = {"copyFile"};
              },
              {}},
             {"old files stay",
              [&] {
                  host().files.files[old + "old.wav"] = "old audio";
                  host().failing = {"removeFolder"};
              },
              {}},
             {"archive not created", failing("create"), {}},
             {"archive not written", failing("flush"), {}},
             {"not started", failing("send"), {}},
             {"cancelled", [] { host().objects.cancelled = true; }, {}},
             {"aborted", [] {}, [] { host().web.abortInFlight(); }},
             {"signed out", [] {}, [this] { signOut(); }},
         }) {
        for (const auto mode : {kAlbum, kSingles}) {
            SCOPED_TRACE(name);
            startWith(mode, mode == kAlbum ? "abc" : "c");
            fault();
            perform("upload");
            if (inTransfer) {
                inTransfer();
            } else {
                EXPECT_TRUE(host().web.sent.empty());
            }
            EXPECT_TRUE(leftovers() == 0 || inTransfer || host().failing.contains("removeFolder"));
            EXPECT_THAT(states(), testing::Each(inTransfer ? 2 : 0));
            EXPECT_EQ(list().currentUploadItem(), nullptr);
            host().failing.clear();
            host().objects.cancelled = false;
            startWith(kSingles, "n");
            perform("upload");
            EXPECT_EQ(sentAudio(), "n");
            host().web.answer(200);
            EXPECT_EQ(leftovers(), 0);
        }
    }
}

TEST_F(UploadQueueTest, NothingDoneWhilePreparingDoesHarm) {
    for (const auto& [name, action, sent] : Rows<const char*, Act, std::size_t>{
             {"upload", [&] { perform("upload"); }, 1},
             {"edited", [&] { track(0).metadata->songTitle = "other"; }, 1},
             {"removed", [&] { list().removeAll(); }, 0},
             {"mode", [&] { list().prepareMode(kAlbum); }, 0},
             {"signed out", [&] { manager->client().resetAuthorization(Silence::kTold); }, 0},
             {"panel closed", [&] { manager.reset(); }, 1}, // sent, and ended before a byte goes out
         }) {
        SCOPED_TRACE(name);
        startWith(kSingles, "a");
        host().objects.onProgressUpdate = [&, action = action] {
            host().objects.onProgressUpdate = nullptr;
            action();
        };
        perform("upload");
        EXPECT_EQ(host().web.sent.size(), sent);
        if (host().web.isInFlight()) {
            EXPECT_THAT(host().web.sent[0].body, HasSubstr(R"("title":"a")"));
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
    startWith(kAlbum, "ab");
    host().files.onCopy = [&] {
        for (const auto& track : tracksOf(list().model())) {
            track->metadata->songArtist = track->metadata->albumTitle = "edited";
        }
    };
    perform("upload");
    ASSERT_EQ(host().web.sent.size(), 1U);
    EXPECT_THAT(host().web.sent[0].body, Not(HasSubstr("edited")));
}

TEST_F(UploadQueueTest, TheReplyIsJudgedByWhatWasSent) {
    const Act publish = [&] {
        list().removeAll();
        list().prepareMode(kAlbum);
        addTrack("x");
        addTrack("y");
    };
    // What changes in the transfer, the states after the reply, and what goes by itself afterwards.
    for (const auto& [mode, change, after, next] : Rows<UploadMode, Act, std::vector<int>, const char*>{
             {kAlbum, [&] { addTrack("x", false); }, {1, 1, 0}, ""},
             {kAlbum, [&] { list().model().remove(0); }, {1}, ""},
             {kAlbum, [&] { list().prepareMode(kSingles); }, {1, 1}, ""},
             {kAlbum, publish, {0, 0}, ""},
             {kSingles, [&] { addTrack("x"); }, {1, 1, 1}, "bx"},
             {kSingles, [&] { list().model().remove(0); }, {0}, ""},
             {kSingles, [&] { list().prepareMode(kAlbum); }, {1, 0}, ""},
             {kSingles, publish, {0, 0}, ""},
         }) {
        startWith(mode, "ab");
        perform("upload");
        change();
        host().web.progress(xbr::floatValue(0.5));
        host().web.answer(200);
        EXPECT_EQ(sentWhile(200), next);
        EXPECT_EQ(states(), after);
        for (const auto& track : tracksOf(list().model())) {
            EXPECT_FALSE(track->uploading);
        }
    }
}

TEST_F(UploadQueueTest, APanelThatWaitsMayBeClosed) {
    startWith(kSingles, "a");
    const auto first = std::exchange(manager, xbr::make<Manager>());
    startWith(kSingles, "b");
    fakehost::press(*first, "upload");
    perform("upload");
    manager = xbr::make<Manager>();
    startWith(kSingles, "c");
    perform("upload");
    EXPECT_TRUE(host().web.sent.empty()) << "the first one's is still on its way";
}

TEST_F(UploadQueueTest, ASecondPanelWaitsForItsTurn) {
    for (const auto& [name, end] : Rows<const char*, std::function<void(xbr::Ref<Manager>&)>>{
             {"answered", [](auto&) { host().web.answer(200); }},
             {"aborted", [](auto&) { host().web.abortInFlight(); }},
             {"closed", [](auto& first) { first.reset(); }},
         }) {
        for (const bool isPreparing : {true, false}) {
            SCOPED_TRACE(name);
            manager = xbr::make<Manager>();
            startWith(kSingles, "a");
            auto first = std::exchange(manager, xbr::make<Manager>());
            startWith(kSingles, "b");
            const Act pressSecond = [&] {
                host().objects.onProgressUpdate = nullptr;
                perform("upload");
                perform("upload");
            };
            host().objects.onProgressUpdate = isPreparing ? pressSecond : Act();
            fakehost::press(*first, "upload");
            if (!isPreparing) {
                pressSecond();
            }
            EXPECT_EQ(sentAudio(), "a");
            EXPECT_EQ(host().web.sent.size(), 1U);
            host().signals.posts.clear();
            end(first);
            host().signals.pump();
            EXPECT_THAT(host().signals.posts, ElementsAre("uploadNext -1")) << "told once";
            EXPECT_EQ(host().web.sent.size(), 2U);
            EXPECT_EQ(sentAudio(), "b");
            host().web.answer(200);
            EXPECT_THAT(states(), ElementsAre(1));
            EXPECT_EQ(leftovers(), 0);
        }
    }
}

/// What follows a reply is the business of the mode that was sent, not of the one that the user chose
/// meanwhile.
TEST_F(UploadQueueTest, TheSentModeDecidesWhatFollows) {
    // The first of two complete tracks, after the service missed something, and whether the second goes.
    for (const auto& [sent, chosen, first, goesOn] :
         Rows<UploadMode, UploadMode, int, bool>{{kSingles, kAlbum, 3, true}, {kAlbum, kSingles, 0, false}}) {
        startWith(sent, "ab");
        perform("upload");
        list().prepareMode(chosen);
        host().web.answer(422, kMissing);
        EXPECT_THAT(states(), ElementsAre(first, 0));
        EXPECT_EQ(host().signals.posts, std::vector<std::string>(goesOn, "uploadNext -1"));
    }
}

TEST_F(UploadQueueTest, NothingIsPreparedThatCannotBeSent) {
    startWith(kSingles, "ab");
    manager->client().resetAuthorization(Silence::kSilent);
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

TEST_F(UploadQueueTest, ThePanelMayGoAtAnyTime) {
    const auto closing = xbr::make<Closing>(manager);
    for (const bool hearsTheReply : {true, false}) {
        manager = xbr::make<Manager>();
        startWith(kSingles, "ab");
        perform("upload");
        xbr::ISubject* const subject = &list();
        if (hearsTheReply) {
            XBRGetSignalHandler()->addObserver(subject, closing.get());
            host().web.answer(200);
            EXPECT_FALSE(manager);
        }
        manager.reset();
        XBRGetSignalHandler()->forgetObserver(closing.get());
        EXPECT_FALSE(host().web.isInFlight());
        EXPECT_EQ(leftovers(), 0) << "the next release must not find this one's audio";
    }
    module.reset();
    host().signals.pump();
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace

} // namespace brindlex
