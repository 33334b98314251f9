#include "module/componentclasses.h"

#include "framework/abi/controller.h"
#include "tests/module/modulefixture.h"

namespace brindlex {

namespace {

using fakehost::host;

class ComponentClassesTest : public ModuleFixture {
protected:
    /// What a form gets for a class name: the component's own name.
    static std::string nameOf(xbr::IClassFactory& classes, const char* className) {
        for (std::int32_t i = 0; i < classes.countClasses(); ++i) {
            const auto& description = *classes.classAt(i);
            EXPECT_EQ(xbr::view(description.category), "Component");
            if (xbr::view(description.name) == className) {
                const auto component = create<xbr::IController>(classes, description.uid);
                return component ? xbr::toString(component->name()) : "(not made)";
            }
        }
        return "(unknown)";
    }
};

TEST_F(ComponentClassesTest, AreOfferedByNameWhileTheModuleRuns) {
    const std::pair<const char*, const char*> cases[] = {
        {"FeedElement", "NewsFeed"},
        {"FeedListComponent", "FeedList"},
        {"ImageElement", "ImageElement"},
        {"ImageElementCache", "ImageElementCache"},
        {"PersistentImageCache", "PersistentImageCache"},
        {"Manager", "(unknown)"},
    };
    ASSERT_EQ(host().objects.factories.size(), 1U);
    auto& classes = *host().objects.factories.front();
    for (const auto& [className, name] : cases) {
        EXPECT_EQ(nameOf(classes, className), name) << className;
    }
    service.reset();
    XBRModuleMain(this, 2);
    EXPECT_TRUE(host().objects.factories.empty());
    EXPECT_EQ(nameOf(componentClasses(), "FeedElement"), "(not made)");
}

} // namespace

} // namespace brindlex
