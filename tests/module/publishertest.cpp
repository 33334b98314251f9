#include "framework/support/objects/object.h"
#include "module/uploadpublisher.h"
#include "tests/module/modulefixture.h"

namespace brindlex {

namespace {

using fakehost::host;

/// The panel's window.
class Window final : public xbr::Object<xbr::IView, xbr::IShow> {
public:
    xbr::Text formName() const noexcept override { return xbr::toText("BrindlexManager"); }
    xbr::IController* controller() noexcept override { return nullptr; }
    xbr::Result show() noexcept override {
        ++shown;
        return xbr::kOk;
    }

    int shown = 0;
};

class Ear final : public xbr::Object<xbr::IObserver> {
public:
    void notify(xbr::ISubject*, xbr::IMessage*) noexcept override { ++heard; }
    int heard = 0;
};

class PublisherTest : public ModuleFixture {
protected:
    xbr::Result publish(std::initializer_list<const char*> urls) {
        const auto items = xbr::make<xbr::ObjectList>();
        for (const char* url : urls) {
            const auto song = xbr::make<Song>(url, "Title");
            items->add(xbr::query<xbr::IObject>(song.get()));
        }
        return publisher->publish(items.get());
    }

    xbr::Ref<UploadPublisher> publisher = xbr::make<UploadPublisher>();
};

TEST_F(PublisherTest, AnswersTheQuestionAboutTheFileType) {
    struct Case {
        const char* offered;
        xbr::Result result;
        const char* answer;
    };
    for (const auto& [offered, result, answer] :
         {Case{"FLAC", xbr::kOk, "FLAC"}, Case{"wav", xbr::kOk, "wav"}, Case{"mp3", xbr::kOk, "mp3"},
          Case{"aiff", xbr::kInvalidArgument, "wav"}, Case{"", xbr::kInvalidArgument, "wav"}}) {
        xbr::Ref<xbr::IFileType> type;
        host().fileTypes.createType(xbr::toText(offered), type.out());
        xbr::IFileType* slot = xbr::Ref<xbr::IFileType>(type).detach();
        EXPECT_EQ(publisher->acceptFileType(&slot), result) << offered;
        EXPECT_EQ(xbr::toString(slot->extension()), answer) << offered;
        slot->release();
        EXPECT_EQ(type->retain(), 2U) << offered << ": ours and this one";
        type->release();
    }
}

TEST_F(PublisherTest, NeedsThePanel) {
    EXPECT_EQ(publish({"file:///a.wav"}), xbr::kUnexpected);
}

TEST_F(PublisherTest, FillsTheListAndShowsThePanel) {
    const auto manager = xbr::make<Manager>();
    const auto window = xbr::make<Window>();
    manager->viewAttached(window.get());
    auto& list = manager->trackList();

    EXPECT_EQ(publish({"file:///one.wav"}), xbr::kOk);
    EXPECT_EQ(list.mode(), UploadMode::kSingles);
    EXPECT_EQ(window->shown, 1);

    auto* const albumUpload = list.findParameter(xbr::toText("albumUpload"));
    const auto ear = xbr::make<Ear>();
    XBRGetSignalHandler()->addObserver(xbr::query<xbr::ISubject>(albumUpload).get(), ear.get());
    EXPECT_EQ(publish({"file:///a.wav", "file:///x.aiff", "", "file:///b.mp3"}), xbr::kOk);
    EXPECT_EQ(list.mode(), UploadMode::kAlbum);
    EXPECT_EQ(xbr::integerOf(albumUpload->value()), 1);
    EXPECT_EQ(ear->heard, 0) << "nobody switched it";
    XBRGetSignalHandler()->forgetObserver(ear.get());
    ASSERT_EQ(list.model().countRows(), 2) << "the earlier song is gone";
    const TrackMetadata& record = *trackAt(list.model(), 1).metadata;
    EXPECT_EQ(record.songTitle, "Title");
    EXPECT_EQ(record.songArtist, "Artist");
    EXPECT_EQ(record.albumTitle, "Album");
    EXPECT_EQ(record.albumArtist, "AlbumArtist");
    EXPECT_EQ(record.primaryGenre, "Genre");
    EXPECT_EQ(record.trackNumber, 7);

    EXPECT_EQ(publish({"file:///one.wav"}), xbr::kOk);
    EXPECT_EQ(list.mode(), UploadMode::kAlbum) << "a single song leaves the mode alone";
    EXPECT_EQ(publish({"file:///x.aiff"}), xbr::kOk);
    EXPECT_EQ(list.model().countRows(), 0);
    manager->viewDetached(window.get());
}

} // namespace

} // namespace brindlex
