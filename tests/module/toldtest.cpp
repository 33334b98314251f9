#include "framework/abi/feed.h"
#include "module/uploadpublisher.h"
#include "tests/module/modulefixture.h"
#include "ui/news/feedelement.h"

#include <functional>

namespace brindlex {

namespace {

using fakehost::host;

/// Everything that observers are told in a day of the module's: each message once, in this order, signalled
/// at once or posted.
class ToldTest : public ModuleFixture {
protected:
    using Steps = fakehost::Rows<const char*, std::function<void()>, const char*>;

    static void play(const Steps& steps) {
        for (const auto& [name, action, told] : steps) {
            host().signals.takeTold();
            action();
            host().signals.pump();
            EXPECT_EQ(host().signals.takeTold(), lines(told)) << name;
        }
    }

    /// "a, b" as lines.
    static std::string lines(std::string text) {
        for (auto comma = text.find(", "); comma != std::string::npos; comma = text.find(", ")) {
            text.replace(comma, 2, "\n");
        }
        return text.empty() ? text : text + '\n';
    }
};

TEST_F(ToldTest, SigningInAndUploading) {
    host().objects.configuration = {
        {"ServerURL", "https://service"}, {"UserURL", "https://me"}, {"ConsumerKey", "key"}};
    service->initialise(context.get());
    const auto manager = xbr::make<Manager>();
    auto& list = manager->trackList();
    host().objects.onModalRun = [] {
        host().fileTypes.openUrl(xbr::toText("brindlex://back?code=c"));
        host().web.answer(200, R"({"access_token":"A"})");
    };
    play({
        {"sign in", [&] { fakehost::press(*manager, "connect"); },
         "Client: propertyChanged, Client: propertyChanged, Client: propertyChanged, Client: "
         "propertyChanged, Client: propertyChanged, post Client: authorizationCompleted, Client: "
         "propertyChanged"},
        {"account", [] { host().web.answer(200, R"({"user":{"name":"Mara"}})"); },
         "Client: propertyChanged, userName = \"Mara\", userURL = \"https://me\""},
        {"publish",
         [] {
             xbr::make<UploadPublisher>()->publish(songs({"a", "b"}).get());
         },
         "TrackProperties: changed, TrackList: changed, list: changed, TrackList: changed, list: changed, "
         "removeAll = 0, TrackList: changed, TrackProperties: changed, TrackList: changed, upload = 0, "
         "list: changed, TrackList: changed, list: changed, TrackList: changed, list: changed, TrackList: "
         "changed"},
        {"choose", [&] { list.model().setFocus(0); },
         "list: selectionChanged, albumTitle = \"Album\" (disabled), albumArtist = \"AlbumArtist\" "
         "(disabled), songTitle = \"a\" (disabled), songArtist = \"Artist\" (disabled), trackNumber = 7 "
         "(disabled), albumTitle = \"Album\", albumArtist = \"AlbumArtist\", primaryGenre = 0, trackNumber"
         " = 7, songTitle = \"a\", songArtist = \"Artist\", albumTitleMissing = 0, albumArtistMissing = 0,"
         " primaryGenreMissing = 0, songTitleMissing = 0, songArtistMissing = 0, TrackProperties: changed,"
         " TrackList: changed"},
        {"edit", [&] { fakehost::set(list.editor(), "albumTitle", xbr::textValue("New")); },
         "list: changed, TrackList: changed, albumTitle = \"New\""},
        {"clear", [&] { fakehost::set(list.editor(), "songArtist", xbr::textValue("")); },
         "list: changed, TrackList: changed, songArtist = \"\""},
        {"upload an album", [&] { fakehost::press(*manager, "upload"); },
         "Client: propertyChanged, upload = 0 (disabled), list: changed, removeAll = 0 (disabled), "
         "albumUpload = 1 (disabled), TrackList: changed, list: changed, TrackList: changed, "
         "TrackProperties: changed, TrackList: changed, songTitle = \"b\", songArtist = \"Artist\", "
         "TrackProperties: changed, TrackList: changed, songTitle = \"a\", songArtist = \"\", "
         "TrackProperties: changed, TrackList: changed"},
        {"progress", [] { host().web.progress(xbr::floatValue(0.5)); },
         "list: itemChanged 0, list: itemChanged 1"},
        {"something is missing",
         [] { host().web.answer(422, R"({"errors":"did not contain a required property"})"); },
         "Client: propertyChanged, upload = 0, TrackProperties: changed, TrackList: changed, songTitle = "
         "\"b\", songArtist = \"Artist\", TrackProperties: changed, TrackList: changed, "
         "primaryGenreMissing = 1, songTitle = \"a\", songArtist = \"\", songArtistMissing = 1, "
         "TrackProperties: changed, TrackList: changed, list: changed, removeAll = 0, albumUpload = 1, "
         "TrackList: changed"},
        {"fill in", [&] { fakehost::set(list.editor(), "songArtist", xbr::textValue("Ann")); },
         "songArtistMissing = 0, list: changed, TrackList: changed, songArtist = \"Ann\""},
        {"singles", [&] { fakehost::set(list, "albumUpload", xbr::integerValue(0)); },
         "list: changed, TrackList: changed, albumTitle = \"a\", albumArtist = \"Ann\", trackNumber = 1, "
         "TrackProperties: changed, TrackList: changed, albumUpload = 0"},
        {"reset",
         [&] {
             const std::int32_t first = 0;
             list.model().setSelection(&first, 1);
             xbr::Ref<xbr::ICommandList> commands;
             list.model().getContextCommands(commands.out());
             commands->perform(0);
         },
         "list: selectionChanged, TrackProperties: changed, TrackList: changed, list: changed, TrackList: "
         "changed"},
        {"upload singles", [&] { fakehost::press(*manager, "upload"); },
         "Client: propertyChanged, upload = 0 (disabled), list: changed, removeAll = 0 (disabled), "
         "albumUpload = 0 (disabled), TrackList: changed, TrackProperties: changed, TrackList: changed, "
         "primaryGenreMissing = 0, TrackProperties: changed, TrackList: changed"},
        {"the first is done", [] { host().web.answer(201); },
         "Client: propertyChanged, upload = 0, list: changed, removeAll = 0, albumUpload = 0, TrackList: "
         "changed, to Kestrova_Brindlex_Client: uploadNext, Client: propertyChanged, upload = 0 "
         "(disabled), list: changed, removeAll = 0 (disabled), albumUpload = 0 (disabled), TrackList: "
         "changed, albumTitle = \"b\", albumArtist = \"Artist\", primaryGenreMissing = 1, songTitle = "
         "\"b\", songArtist = \"Artist\", TrackProperties: changed, TrackList: changed, albumTitle = "
         "\"a\", albumArtist = \"Ann\", primaryGenreMissing = 0, songTitle = \"a\", songArtist = \"Ann\", "
         "TrackProperties: changed, TrackList: changed"},
        {"the second is refused", [] { host().web.answer(401); },
         "Client: propertyChanged, upload = 0, list: changed, removeAll = 0, albumUpload = 0, TrackList: "
         "changed, to Kestrova_Brindlex_Client: uploadNext, to Kestrova_Brindlex_Client: "
         "refreshAccessToken"},
        {"remove", [&] { list.model().removeFocused(); },
         "list: selectionChanged, albumTitle = \"\", albumArtist = \"\", songTitle = \"\", songArtist = "
         "\"\", albumTitle = \"\" (disabled), albumArtist = \"\" (disabled), primaryGenre = 0 (disabled), "
         "trackNumber = 1 (disabled), songTitle = \"\" (disabled), songArtist = \"\" (disabled), "
         "albumTitleMissing = 0 (disabled), albumArtistMissing = 0 (disabled), primaryGenreMissing = 0 "
         "(disabled), songTitleMissing = 0 (disabled), songArtistMissing = 0 (disabled), TrackProperties: "
         "changed, TrackList: changed, list: changed, TrackList: changed"},
        {"remove all", [&] { fakehost::press(list, "removeAll"); },
         "TrackProperties: changed, TrackList: changed, TrackProperties: changed, TrackList: changed, "
         "upload = 0 (disabled), list: changed, removeAll = 0 (disabled), TrackList: changed"},
        {"sign out", [&] { fakehost::press(manager->client(), "resetAuthorization"); },
         "Client: propertyChanged, post Client: authorizationCanceled, resetAuthorization = 1, userName = "
         "\"\", userURL = \"\""},
        {"sign in again, in vain",
         [&] {
             host().objects.onModalRun = [] {
                 host().fileTypes.openUrl(xbr::toText("brindlex://back?code=c"));
                 host().web.answer(400);
             };
             fakehost::press(*manager, "connect");
         },
         "Client: propertyChanged, Client: propertyChanged, Client: propertyChanged, Client: "
         "propertyChanged, Client: propertyChanged, to Client: authorizationLost, Client: propertyChanged,"
         " post Client: authorizationCanceled"},
    });
}

TEST_F(ToldTest, News) {
    const auto news = xbr::make<FeedElement>();
    host().web.documents["document"] = {
        {.title = "One",
         .links = {{{"rel", "enclosure"}, {"type", "image/png"}, {"href", "https://p/1.png"}}}}};
    const auto image = [&] { return xbr::query<xbr::IShownImage>(news->findObject(xbr::toText("image0"))); };
    play({
        {"address", [&] { news->setLocation("https://h/feed"); }, ""},
        {"view",
         [&] {
             xbr::Ref<xbr::IView> view;
             news->createView(xbr::toText("FeedView"), view.out());
         },
         "to NewsFeed: startDownload, NewsFeed: propertyChanged"},
        {"feed", [] { host().downloads.complete("https://h/feed", "document"); },
         "list: stateChanged, NewsFeed: changed, NewsFeed: changed, NewsFeed: propertyChanged"},
        {"show its picture", [&] { image()->beginShowing(); }, "to image0: show, image0: propertyChanged"},
        {"picture", [] { host().downloads.complete("https://p/1.png", "4x4"); },
         "list: stateChanged, post list: decoded, image0: propertyChanged, image0: propertyChanged"},
        {"show it twice, and hide it once",
         [&] {
             image()->beginShowing();
             image()->endShowing();
         },
         ""},
        {"reload all", [&] { news->perform(0); }, "to image0: restartDownload, image0: propertyChanged"},
        {"no picture any more", [] { host().downloads.fail("https://p/1.png"); },
         "list: stateChanged, image0: propertyChanged"},
        {"hide it", [&] { image()->endShowing(); }, "image0: propertyChanged, image0: propertyChanged"},
        {"fewer", [&] { news->setProperty(xbr::toText("maximumEntryCount"), xbr::integerValue(1)); },
         "NewsFeed: changed, NewsFeed: changed"},
        {"another address, where nothing is",
         [&] {
             news->setProperty(xbr::toText("url"), xbr::textValue("https://h/other"));
             news->startDownload();
             host().downloads.fail("https://h/other");
         },
         "NewsFeed: changed, NewsFeed: changed, NewsFeed: propertyChanged, NewsFeed: propertyChanged, "
         "list: stateChanged, NewsFeed: propertyChanged"},
    });
}

} // namespace

} // namespace brindlex
