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

class PublisherTest : public ModuleFixture {
protected:
    xbr::Result publish(const std::vector<const char*>& urls) {
        const auto items = xbr::make<xbr::ObjectList>();
        for (const char* url : urls) {
            items->add(xbr::query<xbr::IObject>(xbr::make<Song>(url, "Title").get()));
        }
        return publisher->publish(items.get());
    }

    xbr::Ref<UploadPublisher> publisher = xbr::make<UploadPublisher>();
};

TEST_F(PublisherTest, AnswersTheQuestionAboutTheFileType) {
    for (const auto& [offered, result, answer] :
         fakehost::Rows<const char*, xbr::Result, const char*>{{"FLAC", xbr::kOk, "FLAC"},
                                                               {"wav", xbr::kOk, "wav"},
                                                               {"mp3", xbr::kOk, "mp3"},
                                                               {"aiff", xbr::kInvalidArgument, "wav"},
                                                               {"", xbr::kInvalidArgument, "wav"}}) {
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

TEST_F(PublisherTest, FillsTheListAndShowsThePanel) {
    EXPECT_EQ(publish({"file:///a.wav"}), xbr::kUnexpected) << "there is no panel";
    const auto manager = xbr::make<Manager>();
    const auto window = xbr::make<Window>();
    manager->viewAttached(window.get());
    auto& list = manager->trackList();
    for (const auto& [urls, mode, rows] : fakehost::Rows<std::vector<const char*>, UploadMode, int>{
             {{"file:///one.wav"}, UploadMode::kSingles, 1},
             {{"file:///a.wav", "file:///x.aiff", "", "file:///b.mp3"}, UploadMode::kAlbum, 2},
             {{"file:///one.wav"}, UploadMode::kAlbum, 1}, // a single song leaves the mode alone
             {{"file:///x.aiff"}, UploadMode::kAlbum, 0},
         }) {
        EXPECT_EQ(publish(urls), xbr::kOk);
        EXPECT_EQ(list.mode(), mode);
        EXPECT_EQ(list.model().countRows(), rows);
        EXPECT_TRUE(rows == 0 || trackAt(list.model(), 0).metadata->primaryGenre == "Genre");
    }
    EXPECT_EQ(window->shown, 4);
    manager->viewDetached(window.get());
}

} // namespace

} // namespace brindlex
