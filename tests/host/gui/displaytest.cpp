#include "host/system/hostsystem.h"
#include "tests/host/gui/formtest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

namespace xbr::host::tests {
namespace {

/// A root "Root" with the child "Inner", and forms that a test makes of one line each.
class Display : public FormTest {
protected:
    Display() {
        root->addChild(inner);
        root->addParameter(Kind::kText, 1, "title");
        root->addParameter(Kind::kToggle, 2, "flag");
        inner->addParameter(Kind::kText, 1, "title").set(textValue("inner"));
        inner->change("state", 0);
    }

    Ref<TestController> inner = make<TestController>("Inner");
};

TEST_F(Display, resolvesPathsFromTheScope) {
    show(widgetXml("QLabel", "a", "xbrText=Inner/title") +
         widgetXml("QWidget", "scope", "xbrScope=Inner",
                   widgetXml("QLabel", "b", "xbrText=title") + widgetXml("QLabel", "c", "xbrText=../title") +
                       widgetXml("QLabel", "d", "xbrText=state")));
    root->named("title").set(textValue("<i>root</i>"));
    inner->change("state", 7);
    EXPECT_EQ(text("a"), "inner");
    EXPECT_EQ(text("b"), "inner");
    EXPECT_EQ(text("c"), "<i>root</i>");
    EXPECT_EQ(at<QLabel>("c").textFormat(), Qt::PlainText);
    EXPECT_EQ(text("d"), "7");
    EXPECT_EQ(warnings, "");
}

TEST_F(Display, warnsOnceOfWhatItCannotBindAndShowsTheRest) {
    const std::pair<std::string, std::string> table[] = {
        {"xbrText=none", "none"},
        {"xbrText=None/title", "None/title"},
        {"xbrText=../title", "../title"},
        {"xbrVisibleIf=!none=3", "none"},
        {"xbrScope=None", "None"},
        {"xbrForm=None", "None"},
        {"xbrForm=F", "F"},
        {"xbrView=None", "None"},
        {"xbrComponent=None", "None"},
        {"xbrListModel=Inner", "Inner"},
        {"xbrIcon=images/none.svg", "images/none.svg"},
        {"xbrParameter=title", "title"}, // a label cannot edit it
        {"xbrLink=title", "title"},
        {"xbrPageSwitch=flag", "flag"},
        {"xbrCommand=0", "0"},
        {"xbrRows=Other", "Other"},
    };
    addForm("Other", "");
    for (const auto& [binding, path] : table) {
        show(widgetXml("QLabel", "wrong", binding, widgetXml("QLabel", "within", "xbrText=title")) +
             widgetXml("QLabel", "again", binding) + widgetXml("QLineEdit", "rest", "xbrParameter=title"));
        ASSERT_TRUE(form) << binding;
        EXPECT_TRUE(warnings.starts_with("debug: form F: '" + path + "': ")) << binding << ": " << warnings;
        EXPECT_EQ(std::count(warnings.begin(), warnings.end(), '\n'), 1) << warnings;
        root->named("title").set(textValue(binding));
        EXPECT_EQ(text("rest"), binding);
    }
    EXPECT_FALSE(view("None"));
    const std::string margin = "<property name='leftMargin'><number>0</number></property>";
    show("<layout class='QNone'>" + margin + "<item>" + widgetXml("QLabel", "rest", "xbrText=title") +
         "</item><item><layout class='QNone'>" + margin + "</layout></item></layout>");
    EXPECT_EQ(text("rest"), "xbrRows=Other");
    show("<nonsense/>");
    EXPECT_FALSE(form);
    EXPECT_NE(warnings.find("form F"), std::string::npos) << warnings;
}

TEST_F(Display, aBrokenSkinIsRefusedAsAWhole) {
    const std::string sound = "<ui version='4.0'><class>F</class></ui>";
    folder.write("skin/f.ui", sound);
    const auto expectLoaded = [&](const std::string& manifest, Result result) {
        folder.write("skin/skin.xml", manifest);
        const auto theme = createHostObject<ITheme>();
        EXPECT_EQ(theme->load(toText(folder.url("skin"))), result) << manifest.substr(0, 99);
        EXPECT_EQ(theme->hasForm(toText("F")), result == kOk && manifest != "<Skin/>") << manifest;
        EXPECT_FALSE(theme->hasForm(toText("X")));
        Ref<IView> view;
        EXPECT_EQ(theme->createView(toText("X"), root.get(), view.out()), kFalse);
        EXPECT_EQ(theme->createView(toText("F"), nullptr, view.out()), kInvalidArgument);
    };
    folder.write("outside.ui", sound);
    folder.write("skin/good.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    folder.write("skin/bad.svg", "<svg>");
    folder.write("skin/a.qss", "QLabel { color: red }");
    folder.write("skin/latin.qss", "/* \xE9 */");
    const std::string good =
        "<Skin><Images><Form name='X' file='none'/></Images><Form name='F' file='f.ui'/>";
    for (const char* entry : {"", "<Image file='good.svg'/><Style file='a.qss' appearance='dark'/>"}) {
        expectLoaded(good + entry + "</Skin>", kOk);
    }
    expectLoaded("<Skin/>", kOk);
    for (const char* entry :
         {"<Form name='B' file='none.ui'/>", "<Form name='B' file=''/>", "<Form name='B'/>",
          "<Form file='f.ui'/>", "<Form name='F' file='f.ui'/>", "<Form name='B' file='../outside.ui'/>",
          "<Form name='B' file='/etc/hosts'/>", "<Form name='B' file='.'/>", "<Style file='none.qss'/>",
          "<Style file='latin.qss'/>", "<Style file='a.qss' appearance='odd'/>", "<Image file='bad.svg'/>",
          "<Image file='none.svg'/>", "<Image file='a.qss'/>",
          "<Image file='good.svg'/><Image file='good.svg'/>"}) {
        expectLoaded(good + entry + "</Skin>", kInvalidArgument);
    }
    for (const std::string& bad :
         {std::string("<html/>"), std::string("<ui><class>"), std::string("<ui/><ui/>"),
          std::string("<!DOCTYPE ui [<!ENTITY a 'b'>]><ui>&a;</ui>"),
          "<ui>" + std::string(5U << 20U, ' ') + "</ui>"}) {
        folder.write("skin/b.ui", bad);
        expectLoaded(good + "<Form name='B' file='b.ui'/></Skin>", kInvalidArgument);
    }
    for (const char* manifest : {"", "<Skin>", "<Theme/>", "no xml", "<!DOCTYPE Skin><Skin/>"}) {
        expectLoaded(manifest, kInvalidArgument);
    }
    const auto theme = createHostObject<ITheme>();
    for (const auto& url : {std::string("resource://nobody/skin"), folder.url("")}) {
        EXPECT_EQ(theme->load(toText(url)), kFalse) << "a folder without manifest is no skin";
    }
}

TEST_F(Display, conditionsShowAndStyle) {
    const std::pair<std::string, std::set<int>> table[] = {
        {"state", {1, 2, 3, 4}}, // at which values of it they hold
        {"!state", {0}},         {"state=2", {2}}, {"state=0,4", {0, 4}}, {"!state=0,4", {1, 2, 3}},
    };
    for (const auto& [condition, shown] : table) {
        const std::string styled = "xbrStyleName=odd;xbrStyleText=It is odd;xbrStyleIf=" + condition;
        show(widgetXml("QWidget", "scope", "xbrScope=Inner",
                       widgetXml("QLabel", "seen", "xbrVisibleIf=" + condition) +
                           widgetXml("QLineEdit", "styled", styled)));
        for (int state = 4; state >= 0; --state) {
            inner->change("state", state);
            const bool holds = shown.contains(state);
            EXPECT_EQ(at("seen").isVisible(), holds) << condition << " at " << state;
            EXPECT_EQ(at("styled").property("xbrStyle").toString(), QLatin1String(holds ? "odd" : ""));
            EXPECT_EQ(at("styled").accessibleDescription(), QLatin1String(holds ? "It is odd" : ""));
        }
    }
}

TEST_F(Display, aPageTakesTheFocusOfTheOneThatGoes) {
    const auto page = [](const char* name, const std::string& content) {
        return widgetXml("QWidget", name, {}, content);
    };
    show(columnXml({widgetXml("QLineEdit", "outside"),
                    widgetXml("QStackedWidget", "pages", "xbrPageSwitch=Inner/state",
                              page("p0", widgetXml("QLineEdit", "e0")) +
                                  page("p1", widgetXml("QLabel", "l1") + widgetXml("QLineEdit", "e1")) +
                                  page("p2", ""))}));
    auto& pages = at<QStackedWidget>("pages");
    at("e0").setFocus();
    inner->change("state", 1);
    EXPECT_EQ(pages.currentIndex(), 1);
    EXPECT_TRUE(at("e1").hasFocus());
    at("outside").setFocus();
    inner->change("state", 0);
    EXPECT_TRUE(at("outside").hasFocus()); // nobody took it away
    inner->change("state", 2);
    EXPECT_EQ(pages.currentIndex(), 2);
    inner->change("state", 9); // there is no such page
    EXPECT_EQ(pages.currentIndex(), 0);
}

TEST_F(Display, linksOpenWebAddressesOnly) {
    qputenv("PATH", "/nowhere"); // no browser is started here
    Texts opened;
    setBrowserAnnouncer([&](std::string_view url) {
        opened.emplace_back(url);
        return true;
    });
    show(widgetXml("QPushButton", "link", "xbrText=title;xbrLink=Inner/title"));
    root->named("title").set(textValue("Tom & Jerry"));
    EXPECT_EQ(text("link"), "Tom && Jerry");
    for (const char* refused : {"", "file:///etc/passwd", "javascript:alert(1)", "https:", "http:///x",
                                "https://me@example.org/", "brindlex://x", "no address", "HTTPS//x"}) {
        inner->named("title").set(textValue(refused));
        EXPECT_FALSE(at("link").isEnabled()) << refused;
        QTest::mouseClick(&at("link"), Qt::LeftButton);
    }
    const Texts taken{"https://example.org/me?a=b#c", "http://example.org"};
    for (const std::string& url : taken) {
        inner->named("title").set(textValue(url));
        QTest::keyClick(&at("link"), Qt::Key_Space);
    }
    EXPECT_EQ(opened, taken);
    setBrowserAnnouncer({});
}

TEST_F(Display, cutsTextOff) {
    const std::string name(200, 'x');
    const char* const kFree =
        "<property name='sizePolicy'><sizepolicy hsizetype='Ignored' vsizetype='Fixed'/></property>";
    show(columnXml({widgetXml("QPushButton", "who", "xbrText=title", kFree)}) +
         widgetXml("QLabel", "short", "xbrText=title;xbrMaximumLength=5"));
    form->resize(150, 60);
    root->named("title").set(textValue(name));
    EXPECT_LT(at<QPushButton>("who").text().size(), 40);
    EXPECT_TRUE(at<QPushButton>("who").text().endsWith(QChar(0x2026)));
    EXPECT_EQ(at("who").accessibleName().toStdString(), name);
    form->resize(4000, 60);
    settle();
    EXPECT_EQ(text("who"), name);
    EXPECT_LT(form->minimumSizeHint().width(), 100);
    const std::pair<const char*, const char*> table[] = {
        {"Five5", "Five5"}, {"Five and", "Five\u2026"}, {"Unbroken", "Unbro\u2026"}, {"", ""}};
    for (const auto& [whole, shown] : table) {
        root->named("title").set(textValue(whole));
        EXPECT_EQ(text("short"), shown);
    }
}

TEST_F(Display, theModuleCanBringTheViewToSight) {
    addForm("F", "");
    const auto made = view("F");
    const auto shows = query<IShow>(made.get());
    ASSERT_TRUE(shows);
    EXPECT_EQ(shows->show(), kFalse); // nothing shows it yet
    std::unique_ptr<QWidget> widget(createViewWidget(*made, nullptr));
    EXPECT_EQ(shows->show(), kOk);
    EXPECT_TRUE(widget->isVisible());
    int shown = 0;
    setShowAction(*widget, [&] {
        ++shown;
        widget.reset();
    });
    EXPECT_EQ(shows->show(), kOk);
    EXPECT_EQ(shows->show(), kFalse);
    EXPECT_EQ(shown, 1);
}

} // namespace
} // namespace xbr::host::tests
