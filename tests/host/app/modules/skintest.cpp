#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/component.h"
#include "host/gui/hostgui.h"
#include "tests/fixtures/testfolder.h"

#include <gtest/gtest.h>

namespace xbr::host {

namespace {

constexpr char kForm[] = "<?xml version='1.0'?><ui version='4.0'><class>F</class></ui>";

class SkinLoading : public testing::Test {
protected:
    SkinLoading() {
        registerGuiClasses();
        m_folder.write("skin/f.ui", kForm);
    }
    ~SkinLoading() override { unregisterGuiClasses(); }

    /// A theme after it loaded a skin with this manifest beside one good form.
    Result load(const std::string& manifest) {
        m_folder.write("skin/skin.xml", manifest);
        m_theme = createHostObject<ITheme>();
        return m_theme->load(toText(m_folder.url("skin")));
    }
    bool hasForm(const char* name) { return m_theme->hasForm(toText(name)); }

    TestFolder m_folder;
    Ref<ITheme> m_theme;
};

} // namespace

TEST_F(SkinLoading, anUnreadableSkinIsRefusedAsAWhole) {
    const auto expectRefused = [this](const std::string& entry) {
        EXPECT_EQ(load("<Skin><Form name='F' file='f.ui'/>" + entry + "</Skin>"), kInvalidArgument) << entry;
        EXPECT_FALSE(hasForm("F")) << entry;
    };
    m_folder.write("outside.ui", kForm);
    m_folder.write("skin/latin.qss", "/* \xE9 */");
    for (const char* entry :
         {"<Form name='B' file='none.ui'/>", "<Form name='B' file=''/>", "<Form name='B'/>",
          "<Form file='f.ui'/>", "<Form name='F' file='f.ui'/>", "<Form name='B' file='../outside.ui'/>",
          "<Form name='B' file='/etc/hosts'/>", "<Form name='B' file='.'/>", "<Style file='none.qss'/>",
          "<Style file='latin.qss'/>"}) {
        expectRefused(entry);
    }
    for (const std::string form :
         {"<html/>", "<ui><class>", "<ui/><ui/>", "<!DOCTYPE ui [<!ENTITY a 'b'>]><ui>&a;</ui>"}) {
        m_folder.write("skin/b.ui", form);
        expectRefused("<Form name='B' file='b.ui'/>");
    }
    m_folder.write("skin/b.ui", "<ui>" + std::string(5U << 20U, ' ') + "</ui>");
    expectRefused("<Form name='B' file='b.ui'/>");
    for (const char* manifest : {"", "<Skin>", "<Theme/>", "no xml", "<!DOCTYPE Skin><Skin/>"}) {
        EXPECT_EQ(load(manifest), kInvalidArgument) << manifest;
    }
}

TEST_F(SkinLoading, whatIsMissingOrUnknownIsFine) {
    m_folder.write("skin/a.qss", "QLabel { color: red }");
    EXPECT_EQ(load("<Skin/>"), kOk);
    EXPECT_EQ(load("<Skin><Images><Form name='X' file='none'/></Images><Style file='a.qss'/>"
                   "<Form name='F' file='f.ui'/></Skin>"),
              kOk);
    EXPECT_TRUE(hasForm("F") && !hasForm("X"));
    Ref<IView> view;
    EXPECT_EQ(m_theme->createView(toText("None"), make<Component>("Panel").get(), view.out()), kFalse);
    EXPECT_EQ(m_theme->createView(toText("F"), nullptr, view.out()), kInvalidArgument);
    EXPECT_EQ(m_theme->load(toText("resource://nobody/skin")), kFalse);
    EXPECT_EQ(m_theme->load(toText(m_folder.url(""))), kFalse) << "a folder without manifest is no skin";
}

} // namespace xbr::host
