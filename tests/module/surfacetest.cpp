#include "framework/abi/listmodel.h"
#include "framework/abi/parameter.h"
#include "module/classtable.h"
#include "tests/module/modulefixture.h"

namespace brindlex {

namespace {

using fakehost::host;

constexpr const char* kSurface = R"(ProgramService, Brindlex Support, 4f434a75-5d50-4eb3-a75a-bc12b06532be, 0
Publisher, Upload to Brindlex, f991ed34-bbc9-4c1a-bbe4-41f7ea4305d4, 0
Gadget, Brindlex Client, 3dbae410-4475-46d7-9788-c05ba9eb837a, 0
MetaClass, Brindlex Client, 9c4d1f8f-6332-43eb-af86-5aef3f58a3b0, 0
Kestrova_Brindlex_Client
101 upload command 0..1 0 disabled
102 connect command 0..1 0
103 userName text 0..1 ""
104 userURL text 0..1 ""
100 open plain 0..1 0
Client
100 getAuthorizationCode plain 0..1 0
101 resetAuthorization plain 0..1 0
102 retryAuthorization plain 0..1 0
103 isAuthorized plain 0..1 0
clientState 0
isAuthorized 0
isBusy 0
TrackList
100 addTracks command 0..1 0
101 removeAll command 0..1 0 disabled
102 albumUpload toggle 0..1 0
TrackProperties
100 albumTitle text 0..1 "" disabled
101 albumArtist text 0..1 "" disabled
102 primaryGenre list 0..2 0 disabled: " ", "Rock", "Jazz"
103 trackNumber integer 1..10000 1 disabled
104 songTitle text 0..1 "" disabled
105 songArtist text 0..1 "" disabled
106 albumTitleMissing integer 0..1 0 disabled
107 albumArtistMissing integer 0..1 0 disabled
108 primaryGenreMissing integer 0..1 0 disabled
109 songTitleMissing integer 0..1 0 disabled
110 songArtistMissing integer 0..1 0 disabled
hasFocusItem 0
Component, FeedElement, 02eb5f3d-b585-4e16-be6d-1c7e3f2c7fec, 0
NewsFeed
itemCount 0
maximumEntryCount -1
downloadState 0
url ""
Component, FeedListComponent, d1dd7f5a-bd71-41e1-8d79-82b9003aa462, 0
FeedList
100 feedList integer 0..2147483647 0
Component, ImageElement, ff8bd1c9-430d-4a97-a500-14fc25c55790, 0
ImageElement
downloadState 0
url ""
hasImage 0
Component, ImageElementCache, 5e3e1d4e-1d70-42fb-90b5-ed1aaf90bb36, 0
ImageElementCache
Component, PersistentImageCache, 28215e6b-5ecf-4af6-a24b-72bea1aae77e, 0
PersistentImageCache
)";

/// What forms, scripts and stored settings know of the module: a change here is one that they must follow.
class SurfaceTest : public ModuleFixture {
protected:
    /// A line for the class: category, name, UID, flags.
    static std::string surfaceOf(const xbr::ClassDescription& description) {
        return xbr::toString(description.category) + ", " + xbr::toString(description.name) + ", " +
               xbr::toString(description.uid) + ", " + std::to_string(description.flags) + "\n";
    }
    static std::string surfaceOf(xbr::IClassFactory& classes) {
        std::string text;
        for (std::int32_t i = 0; i < classes.countClasses(); ++i) {
            text += surfaceOf(*classes.classAt(i));
        }
        return text;
    }

    /// A line for the component and one for each of its parameters: tag, name, kind, range, value.
    static std::string surfaceOf(xbr::IController& controller) {
        static constexpr const char* kKinds[] = {"plain", "command", "toggle", "integer", "text", "list"};
        std::string text = xbr::toString(controller.name()) + "\n";
        for (std::int32_t i = 0; i < controller.countParameters(); ++i) {
            const auto& parameter = *controller.parameterAt(i);
            text += std::to_string(parameter.tag()) + " " + xbr::toString(parameter.name()) + " " +
                    kKinds[static_cast<std::size_t>(parameter.kind())] + " " +
                    std::to_string(parameter.minimum()) + ".." + std::to_string(parameter.maximum()) + " " +
                    fakehost::written(parameter.value()) + (parameter.isEnabled() ? "" : " disabled");
            for (std::int32_t choice = 0; choice < parameter.countChoices(); ++choice) {
                text += (choice == 0 ? ": \"" : ", \"") + xbr::toString(parameter.choiceAt(choice)) + '"';
            }
            text += '\n';
        }
        return text;
    }

    /// A line for each of these properties that it has.
    static std::string properties(const xbr::Ref<xbr::IObject>& object,
                                  std::initializer_list<const char*> names) {
        std::string text;
        const auto source = xbr::query<xbr::IPropertySource>(object.get());
        for (const char* name : names) {
            const auto value = fakehost::property(*source, name);
            text += value.kind == xbr::ValueKind::kNone ? "" : name + (" " + fakehost::written(value)) + "\n";
        }
        return text;
    }

    static xbr::Ref<xbr::IController> child(xbr::IController& parent, const char* name) {
        return xbr::query<xbr::IController>(parent.findObject(xbr::toText(name)));
    }
};

TEST_F(SurfaceTest, IsWhatFormsAreMadeFor) {
    service->initialise(context.get());
    xbr::Ref<xbr::IClassFactory> classes;
    service->getClasses(classes.out());
    const auto panel = create<xbr::IController>(*classes, gadgetClass().uid);
    const auto client = child(*panel, "Client");
    const auto list = child(*panel, "TrackList");
    const auto editor = child(*list, "TrackProperties");
    std::string surface = surfaceOf(*XBRGetClassFactory()) + surfaceOf(*classes) + surfaceOf(*panel) +
                          properties(panel, {"dashboardVisible"}) + surfaceOf(*client) +
                          properties(client, {"clientState", "isAuthorized", "isBusy"}) + surfaceOf(*list) +
                          surfaceOf(*editor) + properties(editor, {"hasFocusItem"});
    ASSERT_EQ(host().objects.factories.size(), 1U);
    auto& components = *host().objects.factories.front();
    for (std::int32_t i = 0; i < components.countClasses(); ++i) {
        const auto component = create<xbr::IController>(components, components.classAt(i)->uid);
        surface +=
            surfaceOf(*components.classAt(i)) + surfaceOf(*component) +
            properties(component, {"itemCount", "maximumEntryCount", "downloadState", "url", "hasImage"});
    }
    EXPECT_EQ(surface, kSurface);
    EXPECT_TRUE(xbr::query<xbr::IListViewModel>(list->findObject(xbr::toText("tracks"))));
}

TEST_F(SurfaceTest, ATrackTellsWhatItIs) {
    const auto track =
        xbr::make<TrackItem>("title", xbr::Url("file:///a%20b.wav"), xbr::make<TrackMetadata>());
    TrackMetadata& record = *track->metadata;
    record.albumTitle = "album";
    record.albumArtist = "band";
    record.primaryGenre = "genre";
    record.trackNumber = 3;
    record.songTitle = "song";
    record.songArtist = "singer";
    track->uploading = true;
    track->progress = 2.5;
    track->state = TrackUploadState::kFailed;
    EXPECT_EQ(properties(track, {"title", "file", "enabled", "uploading", "progress", "state", "trackNumber",
                                 "albumTitle", "albumArtist", "primaryGenre", "songTitle", "songArtist",
                                 "singlesGenre"}),
              R"(title "title"
file "file:///a%20b.wav"
enabled 0
uploading 1
progress 2
state 2
trackNumber 3
albumTitle "album"
albumArtist "band"
primaryGenre "genre"
songTitle "song"
songArtist "singer"
)");
    EXPECT_EQ(track->setProperty(xbr::toText("title"), xbr::textValue("x")), xbr::kFalse);
}

} // namespace

} // namespace brindlex
