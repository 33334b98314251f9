#include "framework/abi/parameter.h"
#include "module/classtable.h"
#include "tests/module/modulefixture.h"

namespace brindlex {

namespace {

using fakehost::host;

constexpr const char* kSurface = R"(Kestrova_Brindlex_Client
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
TrackList
100 addTracks command 0..1 0
101 removeAll command 0..1 0 disabled
102 albumUpload toggle 0..1 0
TrackProperties
100 albumTitle text 0..1 "" disabled
101 albumArtist text 0..1 "" disabled
102 primaryGenre list 0..2 0 disabled
103 trackNumber integer 1..10000 1 disabled
104 songTitle text 0..1 "" disabled
105 songArtist text 0..1 "" disabled
106 albumTitleMissing integer 0..1 0 disabled
107 albumArtistMissing integer 0..1 0 disabled
108 primaryGenreMissing integer 0..1 0 disabled
109 songTitleMissing integer 0..1 0 disabled
110 songArtistMissing integer 0..1 0 disabled
Component FeedElement: NewsFeed
Component FeedListComponent: FeedList
100 feedList integer 0..2147483647 0
Component ImageElement: ImageElement
Component ImageElementCache: ImageElementCache
Component PersistentImageCache: PersistentImageCache
)";

/// What forms, scripts and stored settings know of the module: a change here is one that they must follow.
class SurfaceTest : public ModuleFixture {
protected:
    /// A line for the component and one for each of its parameters: tag, name, kind, range, value.
    static std::string surfaceOf(xbr::IController& controller) {
        static constexpr const char* kKinds[] = {"plain", "command", "toggle", "integer", "text", "list"};
        std::string text = xbr::toString(controller.name()) + "\n";
        for (std::int32_t i = 0; i < controller.countParameters(); ++i) {
            const auto& parameter = *controller.parameterAt(i);
            text += std::to_string(parameter.tag()) + " " + xbr::toString(parameter.name()) + " " +
                    kKinds[static_cast<std::size_t>(parameter.kind())] + " " +
                    std::to_string(parameter.minimum()) + ".." + std::to_string(parameter.maximum()) + " " +
                    fakehost::written(parameter.value()) + (parameter.isEnabled() ? "\n" : " disabled\n");
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
    const auto list = child(*panel, "TrackList");
    std::string surface = surfaceOf(*panel) + surfaceOf(*child(*panel, "Client")) + surfaceOf(*list) +
                          surfaceOf(*child(*list, "TrackProperties"));
    ASSERT_EQ(host().objects.factories.size(), 1U);
    auto& components = *host().objects.factories.front();
    for (std::int32_t i = 0; i < components.countClasses(); ++i) {
        surface += xbr::toString(components.classAt(i)->category) + " " +
                   xbr::toString(components.classAt(i)->name) + ": ";
        surface += surfaceOf(*create<xbr::IController>(components, components.classAt(i)->uid));
    }
    EXPECT_EQ(surface, kSurface);
}

} // namespace

} // namespace brindlex
