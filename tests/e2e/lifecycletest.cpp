// Loads and unloads the built extension through its two entry points, as a host does.

#include "framework/abi/filesystem.h"
#include "framework/abi/filetype.h"
#include "framework/abi/pluginmanager.h"
#include "framework/abi/publisher.h"
#include "framework/abi/view.h"
#include "framework/support/parts/path.h"
#include "host/gui/hostgui.h"
#include "tests/e2e/builtmodule.h"

namespace {

using e2e::create;
using e2e::Library;

/// Everything that a host makes of a module, and back.
void useEverything(xbr::IClassFactory& factory) {
    const auto callback = xbr::toText("brindlex://authorize?code=c");
    const auto context = xbr::make<e2e::Context>();
    const auto service = create<xbr::IProgramService>(factory, 0);
    ASSERT_TRUE(service);
    ASSERT_EQ(service->initialise(context.get()), xbr::kOk);
    xbr::Ref<xbr::IClassFactory> classes;
    ASSERT_EQ(service->getClasses(classes.out()), xbr::kOk);
    {
        EXPECT_TRUE(create<xbr::IPublisher>(*classes, 0));
        EXPECT_TRUE(create<xbr::IGadgetDescription>(*classes, 2));
        const auto gadget = create<xbr::IController>(*classes, 1);
        ASSERT_TRUE(gadget);
        const auto* genres = xbr::findParameter(*gadget, "TrackList/TrackProperties/primaryGenre");
        ASSERT_NE(genres, nullptr);
        EXPECT_EQ(genres->countChoices(), 135);
        EXPECT_TRUE(XBRGetFileTypeRegistry()->openUrl(callback));
    }
    EXPECT_EQ(service->terminate(), xbr::kOk);
    EXPECT_FALSE(XBRGetFileTypeRegistry()->openUrl(callback));
}

TEST(Lifecycle, TheModuleIsLoadedAndItsLibraryOpenedAgainAndAgain) {
    xbr::host::registerGuiClasses();
    for (int opened = 0; opened < 5; ++opened) {
        {
            Library library;
            for (int loaded = 0; loaded < 5; ++loaded) {
                ASSERT_EQ(library.load(), 1);
                useEverything(*library.getFactory());
                ASSERT_EQ(library.unload(), 1);
                ASSERT_FALSE(XBRGetFileSystem()->fileExists(xbr::toText("resource://brindlex/gadget.xml")));
            }
        }
        ASSERT_FALSE(Library::isMapped()) << "something keeps the library from being closed";
    }
    xbr::host::unregisterGuiClasses();
}

} // namespace
