// Loads and unloads the built extension through its two entry points, as a host does.

#include "framework/abi/filesystem.h"
#include "framework/abi/filetype.h"
#include "framework/abi/pluginmanager.h"
#include "framework/abi/publisher.h"
#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/gui/hostgui.h"
#include "tests/e2e/builtmodule.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace {

using e2e::Context;
using e2e::create;
using e2e::Library;

class Lifecycle : public testing::Test {
protected:
    Lifecycle() { xbr::host::registerGuiClasses(); }
    ~Lifecycle() override { xbr::host::unregisterGuiClasses(); }

    /// Everything that a host makes of a module, and back.
    static void useEverything(xbr::IClassFactory& factory) {
        const auto context = xbr::make<Context>();
        const auto service = create<xbr::IProgramService>(factory, 0);
        ASSERT_TRUE(service);
        ASSERT_EQ(service->initialise(context.get()), xbr::kOk);
        xbr::Ref<xbr::IClassFactory> classes;
        ASSERT_EQ(service->getClasses(classes.out()), xbr::kOk);
        {
            EXPECT_TRUE(create<xbr::IPublisher>(*classes, 0));
            const auto gadget = create<xbr::IController>(*classes, 1);
            ASSERT_TRUE(gadget);
            EXPECT_NE(xbr::findParameter(*gadget, "TrackList/albumUpload"), nullptr);
            const auto* genres = xbr::findParameter(*gadget, "TrackList/TrackProperties/primaryGenre");
            ASSERT_NE(genres, nullptr);
            EXPECT_EQ(genres->countChoices(), 135);
            EXPECT_TRUE(XBRGetFileTypeRegistry()->openUrl(xbr::toText("brindlex://authorize?code=c")));
            const auto description = create<xbr::IGadgetDescription>(*classes, 2);
            EXPECT_EQ(xbr::toString(description->attribute(xbr::toText("themeName"))), "brindlex");
            EXPECT_EQ(xbr::toString(description->attribute(xbr::toText("formName"))), "BrindlexManager");
            EXPECT_EQ(xbr::toString(description->attribute(xbr::toText("menuPriority"))), "1");
        }
        EXPECT_EQ(service->terminate(), xbr::kOk);
        EXPECT_FALSE(XBRGetFileTypeRegistry()->openUrl(xbr::toText("brindlex://authorize?code=c")));
    }
};

TEST_F(Lifecycle, LoadsAndUnloadsAThousandTimesInOneProcess) {
    Library library;
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(library.load(), 1) << i;
        if (i % 50 == 0) {
            useEverything(*library.getFactory());
        }
        ASSERT_EQ(library.unload(), 1) << i;
        ASSERT_FALSE(XBRGetFileSystem()->fileExists(xbr::toText("resource://brindlex/gadget.xml"))) << i;
    }
}

TEST_F(Lifecycle, LibraryCanBeClosedAndOpenedAgain) {
    for (int i = 0; i < 20; ++i) {
        {
            Library library;
            ASSERT_EQ(library.load(), 1);
            useEverything(*library.getFactory());
            ASSERT_EQ(library.unload(), 1);
        }
        ASSERT_FALSE(Library::isMapped()) << "something keeps the library from being closed";
    }
}

TEST_F(Lifecycle, WithoutThemesTheModuleRefusesToLoad) {
    xbr::host::unregisterGuiClasses();
    Library library;
    EXPECT_EQ(library.load(), 0);
    EXPECT_FALSE(XBRGetFileSystem()->fileExists(xbr::toText("resource://brindlex/gadget.xml")))
        << "torn down";
    xbr::host::registerGuiClasses();
    EXPECT_EQ(library.load(), 1) << "the host may try again";
    EXPECT_EQ(library.unload(), 1);
}

TEST_F(Lifecycle, SkinFormsAreThere) {
    Library library;
    ASSERT_EQ(library.load(), 1);
    void* object = nullptr;
    XBRGetPlugInManager()->createInstance(xbr::ITheme::kClassUid, xbr::ITheme::kUid, &object);
    const auto theme = xbr::Ref<xbr::ITheme>::adopt(static_cast<xbr::ITheme*>(object));
    ASSERT_EQ(theme->load(xbr::toText("resource://brindlex/skin")), xbr::kOk);
    for (const char* form : {"BrindlexManager", "BrindlexLogin", "BrindlexTrackUpload",
                             "BrindlexConnectDialog", "BrindlexAuthorization"}) {
        EXPECT_TRUE(theme->hasForm(xbr::toText(form))) << form;
    }
    library.unload();
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
