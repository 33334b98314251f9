#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/component.h"
#include "host/base/fileurl.h"
#include "host/gui/hostgui.h"
#include "tests/fixtures/testfolder.h"

#include <gtest/gtest.h>

namespace xbr::host {

namespace {

constexpr char kForm[] = "<?xml version='1.0'?><ui version='4.0'><class>F</class></ui>";
constexpr char kOneForm[] = "<Skin><Form name='F' file='forms/f.ui'/></Skin>";

class SkinLoading : public testing::Test {
protected:
    SkinLoading() { registerGuiClasses(); }
    ~SkinLoading() override { unregisterGuiClasses(); }

    /// Loads a skin with this manifest beside one good form.
    Result load(const Ref<ITheme>& theme, std::string_view manifest) {
        m_folder.write("skin/forms/f.ui", kForm);
        m_folder.write("skin/skin.xml", manifest);
        return theme->load(toText(fileUrl(m_folder.path("skin"))));
    }

    TestFolder m_folder;
};

} // namespace

TEST_F(SkinLoading, anUnreadableSkinIsRefusedAsAWhole) {
    m_folder.write("skin/html.ui", "<html/>");
    m_folder.write("skin/cut.ui", "<ui><class>");
    m_folder.write("skin/two.ui", "<ui/><ui/>");
    m_folder.write("skin/dtd.ui", "<!DOCTYPE ui [<!ENTITY a 'b'>]><ui>&a;</ui>");
    m_folder.write("skin/large.ui", "<ui>" + std::string(5U << 20U, ' ') + "</ui>");
    m_folder.write("skin/latin.qss", "/* \xE9 */");
    m_folder.write("outside.ui", kForm);
    const std::string entries[] = {
        "<Form name='B' file='none.ui'/>",
        "<Form name='B' file='html.ui'/>",
        "<Form name='B' file='cut.ui'/>",
        "<Form name='B' file='two.ui'/>",
        "<Form name='B' file='dtd.ui'/>",
        "<Form name='B' file='large.ui'/>",
        "<Form name='B' file=''/>",
        "<Form name='B'/>",
        "<Form file='forms/f.ui'/>",
        "<Form name='F' file='f.ui'/>",
        "<Form name='B' file='../outside.ui'/>",
        "<Form name='B' file='/etc/hosts'/>",
        "<Form name='B' file='forms'/>",
        "<Style file='none.qss'/>",
        "<Style file='latin.qss'/>",
    };
    for (const std::string& entry : entries) {
        const auto theme = createHostObject<ITheme>();
        EXPECT_EQ(load(theme, "<Skin><Form name='F' file='forms/f.ui'/>" + entry + "</Skin>"),
                  kInvalidArgument)
            << entry;
        EXPECT_FALSE(theme->hasForm(toText("F"))) << entry;
    }
    for (const char* manifest : {"", "<Skin>", "<Theme/>", "no xml", "<!DOCTYPE Skin><Skin/>"}) {
        EXPECT_EQ(load(createHostObject<ITheme>(), manifest), kInvalidArgument) << manifest;
    }
}

TEST_F(SkinLoading, aFolderWithoutManifestIsNoSkin) {
    const auto theme = createHostObject<ITheme>();
    m_folder.write("skin/forms/f.ui", kForm);
    EXPECT_EQ(theme->load(toText(fileUrl(m_folder.path("skin")))), kFalse);
    EXPECT_EQ(theme->load(toText("resource://nobody/skin")), kFalse);
}

TEST_F(SkinLoading, unknownElementsAndAnEmptySkinAreFine) {
    m_folder.write("skin/a.qss", "QLabel { color: red }");
    const auto theme = createHostObject<ITheme>();
    EXPECT_EQ(load(theme, "<Skin/>"), kOk);
    EXPECT_EQ(load(theme, "<Skin><Images><Form name='X' file='none'/></Images><Style file='a.qss'/>"
                          "<Form name='F' file='forms/f.ui'/></Skin>"),
              kOk);
    EXPECT_TRUE(theme->hasForm(toText("F")));
    EXPECT_FALSE(theme->hasForm(toText("X")));
}

TEST_F(SkinLoading, theControllerKnowsItsViewsForAsLongAsTheyLive) {
    const auto theme = createHostObject<ITheme>();
    ASSERT_EQ(load(theme, kOneForm), kOk);
    auto component = make<Component>("Panel");
    Ref<IView> view;
    EXPECT_EQ(theme->createView(toText("None"), component.get(), view.out()), kFalse);
    EXPECT_EQ(theme->createView(toText("F"), nullptr, view.out()), kInvalidArgument);
    EXPECT_EQ(component->view(), nullptr);
    ASSERT_EQ(theme->createView(toText("F"), component.get(), view.out()), kOk);
    EXPECT_EQ(component->view(), view.get());
    EXPECT_EQ(xbr::view(view->formName()), "F");
    Component* borrowed = component.get();
    component.reset(); // the view keeps it
    EXPECT_EQ(view->controller(), borrowed);
    component = Ref<Component>::share(borrowed);
    view.reset();
    EXPECT_EQ(component->view(), nullptr);
}

} // namespace xbr::host
