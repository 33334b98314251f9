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

bool hasResources() {
    return XBRGetFileSystem()->fileExists(xbr::toText("resource://brindlex/gadget.xml"));
}

class Lifecycle : public testing::Test {
protected:
    Lifecycle() { xbr::host::registerGuiClasses(); }
    ~Lifecycle() override { xbr::host::unregisterGuiClasses(); }

    /// Everything that a host makes of a module, and back.
    static void useEverything(xbr::IClassFactory& factory) {
        const auto context = xbr::make<e2e::Context>();
        const auto service = create<xbr::IProgramService>(factory, 0);
        ASSERT_TRUE(service);
        ASSERT_EQ(service->initialise(context.get()), xbr::kOk);
        xbr::Ref<xbr::IClassFactory> classes;
        ASSERT_EQ(service->getClasses(classes.out()), xbr::kOk);
        {
            EXPECT_TRUE(create<xbr::IPublisher>(*classes, 0));
            const auto gadget = create<xbr::IController>(*classes, 1);
            ASSERT_TRUE(gadget);
            const auto* genres = xbr::findParameter(*gadget, "TrackList/TrackProperties/primaryGenre");
            ASSERT_NE(genres, nullptr);
            EXPECT_EQ(genres->countChoices(), 135);
            EXPECT_TRUE(XBRGetFileTypeRegistry()->openUrl(xbr::toText("brindlex://authorize?code=c")));
            const auto description = create<xbr::IGadgetDescription>(*classes, 2);
            for (const auto& [name, value] : {std::pair{"themeName", "brindlex"},
                                              {"formName", "BrindlexManager"},
                                              {"menuPriority", "1"}}) {
                EXPECT_EQ(xbr::toString(description->attribute(xbr::toText(name))), value);
            }
        }
        void* object = nullptr;
        XBRGetPlugInManager()->createInstance(xbr::ITheme::kClassUid, xbr::ITheme::kUid, &object);
        const auto theme = xbr::Ref<xbr::ITheme>::adopt(static_cast<xbr::ITheme*>(object));
        ASSERT_EQ(theme->load(xbr::toText("resource://brindlex/skin")), xbr::kOk);
        for (const char* form : {"BrindlexManager", "BrindlexLogin", "BrindlexTrackUpload",
                                 "BrindlexConnectDialog", "BrindlexAuthorization"}) {
            EXPECT_TRUE(theme->hasForm(xbr::toText(form))) << form;
        }
        EXPECT_EQ(service->terminate(), xbr::kOk);
        EXPECT_FALSE(XBRGetFileTypeRegistry()->openUrl(xbr::toText("brindlex://authorize?code=c")));
    }
};

TEST_F(Lifecycle, TheModuleIsLoadedAndItsLibraryOpenedAgainAndAgain) {
    for (int opened = 0; opened < 5; ++opened) {
        {
            Library library;
            for (int loaded = 0; loaded < 5; ++loaded) {
                ASSERT_EQ(library.load(), 1);
                useEverything(*library.getFactory());
                ASSERT_EQ(library.unload(), 1);
                ASSERT_FALSE(hasResources());
            }
        }
        ASSERT_FALSE(Library::isMapped()) << "something keeps the library from being closed";
    }
}

TEST_F(Lifecycle, WithoutThemesTheModuleRefusesToLoad) {
    xbr::host::unregisterGuiClasses();
    Library library;
    EXPECT_EQ(library.load(), 0);
    EXPECT_FALSE(hasResources()) << "torn down";
    xbr::host::registerGuiClasses();
    EXPECT_EQ(library.load(), 1) << "the host may try again";
    EXPECT_EQ(library.unload(), 1);
}

} // namespace
