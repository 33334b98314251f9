// Loads and unloads the built extension as the host does.

#include "framework/abi/filesystem.h"
#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/app/modules/gadgetpanel.h"
#include "host/app/modules/loadedmodule.h"
#include "host/app/modules/publishentry.h"
#include "host/gui/hostgui.h"
#include "tests/fixtures/hostcontext.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace xbr::host::tests {
namespace {

/// Everything that a host makes of a module, and back.
void useEverything(IHostContext& context) {
    const auto callback = toText("brindlex://authorize?code=c");
    {
        const auto module = LoadedModule::load(BRINDLEX_MODULE, context);
        ASSERT_TRUE(module);
        EXPECT_TRUE(createPublisher(findPublishEntries().at(0)));
        const auto panel = GadgetPanel::open(findGadgets().at(0), {});
        ASSERT_TRUE(panel);
        const auto* genres = findParameter((*panel)->controller(), "TrackList/TrackProperties/primaryGenre");
        ASSERT_NE(genres, nullptr);
        EXPECT_EQ(genres->countChoices(), 135);
        EXPECT_TRUE(XBRGetFileTypeRegistry()->openUrl(callback));
    }
    EXPECT_FALSE(XBRGetFileTypeRegistry()->openUrl(callback));
    EXPECT_FALSE(XBRGetFileSystem()->fileExists(toText("resource://brindlex/gadget.xml")));
}

TEST(Lifecycle, TheModuleIsLoadedAndItsLibraryOpenedAgainAndAgain) {
    registerGuiClasses();
    const auto context = make<TestHostContext>();
    for (int opened = 0; opened < 5; ++opened) {
        void* const library = dlopen(BRINDLEX_MODULE, RTLD_NOW | RTLD_LOCAL);
        for (int loaded = 0; loaded < 5; ++loaded) {
            useEverything(*context);
        }
        dlclose(library);
        ASSERT_EQ(dlopen(BRINDLEX_MODULE, RTLD_NOW | RTLD_NOLOAD), nullptr)
            << "something keeps the library from being closed";
    }
    unregisterGuiClasses();
}

} // namespace
} // namespace xbr::host::tests
