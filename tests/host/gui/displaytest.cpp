#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"
#include "host/gui/hostwidgets.h"
#include "host/system/hostsystem.h"
#include "tests/host/gui/testskin.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

using Kind = ParameterKind;

/// A root "Root" with the child "Inner", and forms that a test makes of one line each.
class Display : public testing::Test {
protected:
    Display() {
        root = make<TestController>("Root");
        inner = make<TestController>("Inner");
        root->addChild(inner);
        root->addParameter(Kind::kText, 1, "title");
        root->addParameter(Kind::kToggle, 2, "flag");
        inner->addParameter(Kind::kText, 1, "title").set(textValue("inner"));
        inner->change("state", 0);
    }

    void show(const std::string& content) {
        skin.addForm("F", content);
        testing::internal::CaptureStderr();
        form = skin.widget("F", *root);
        warnings = testing::internal::GetCapturedStderr();
    }
    int countWarnings(const std::string& path) const {
        int count = 0;
        const std::string start = "debug: form F: '" + path + "': ";
        for (auto at = warnings.find(start); at != std::string::npos; at = warnings.find(start, at + 1)) {
            ++count;
        }
        return count;
    }
    template <class Widget>
    Widget& at(const char* name) {
        return child<Widget>(*form, name);
    }

    TestSkin skin;
    Ref<TestController> root;
    Ref<TestController> inner;
    std::unique_ptr<QWidget> form;
    std::string warnings;
};

TEST_F(Display, resolvesPathsFromTheScope) {
    show(widgetXml("QLabel", "a", "xbrText=Inner/title") +
         widgetXml("QWidget", "scope", "xbrScope=Inner",
                   widgetXml("QLabel", "b", "xbrText=title") + widgetXml("QLabel", "c", "xbrText=../title") +
                       widgetXml("QLabel", "d", "xbrText=state")));
    root->named("title").set(textValue("<i>root</i>"));
    inner->change("state", 7);
    EXPECT_EQ(at<QLabel>("a").text().toStdString(), "inner");
    EXPECT_EQ(at<QLabel>("b").text().toStdString(), "inner");
    EXPECT_EQ(at<QLabel>("c").text().toStdString(), "<i>root</i>");
    EXPECT_EQ(at<QLabel>("c").textFormat(), Qt::PlainText);
    EXPECT_EQ(at<QLabel>("d").text().toStdString(), "7");
    EXPECT_EQ(warnings, "");
}

TEST_F(Display, warnsOnceOfWhatItCannotBindAndShowsTheRest) {
    const std::vector<std::pair<std::string, std::string>> table = {
        {"xbrText=none", "none"},
        {"xbrText=Inner/none", "Inner/none"},
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
    };
    for (const auto& [binding, path] : table) {
        show(widgetXml("QLabel", "wrong", binding, widgetXml("QLabel", "within", "xbrText=title")) +
             widgetXml("QLabel", "again", binding) + widgetXml("QLineEdit", "rest", "xbrParameter=title"));
        ASSERT_TRUE(form) << binding;
        EXPECT_EQ(countWarnings(path), 1) << binding << ": " << warnings;
        EXPECT_EQ(std::count(warnings.begin(), warnings.end(), '\n'), 1) << warnings;
        root->named("title").set(textValue(binding));
        EXPECT_EQ(at<QLineEdit>("rest").text().toStdString(), binding);
    }
}

TEST_F(Display, aFormThatCannotBeMadeIsNoWidget) {
    skin.addForm("F", "");
    skin.addForm("Odd", "<nonsense/>");
    EXPECT_FALSE(skin.view("None", *root));
    testing::internal::CaptureStderr();
    const auto odd = skin.widget("Odd", *root);
    warnings = testing::internal::GetCapturedStderr();
    EXPECT_FALSE(odd);
    EXPECT_NE(warnings.find("form Odd"), std::string::npos) << warnings;
}

TEST_F(Display, aSkinWithABrokenPictureIsRefused) {
    skin.write("good.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    skin.write("bad.svg", "<svg>");
    skin.write("a.qss", "QLabel { color: red }");
    const std::vector<std::pair<const char*, Result>> table = {
        {"<Image file='good.svg'/><Style file='a.qss' appearance='dark'/>", kOk},
        {"<Image file='bad.svg'/>", kInvalidArgument},
        {"<Image file='none.svg'/>", kInvalidArgument},
        {"<Image file='a.qss'/>", kInvalidArgument},
        {"<Image file='good.svg'/><Image file='good.svg'/>", kInvalidArgument},
        {"<Style file='a.qss' appearance='odd'/>", kInvalidArgument},
    };
    for (const auto& [entries, result] : table) {
        skin.write("skin.xml", std::string("<Skin>") + entries + "</Skin>");
        EXPECT_EQ(skin.load(), result) << entries;
    }
}

TEST_F(Display, conditions) {
    struct Row {
        const char* condition;
        std::vector<int> shown; ///< values of "state" from 0 to 4 that show the widget
    };
    const std::vector<Row> table = {{"state", {1, 2, 3, 4}},
                                    {"!state", {0}},
                                    {"state=2", {2}},
                                    {"state=0,4", {0, 4}},
                                    {"!state=0,4", {1, 2, 3}}};
    for (const auto& [condition, shown] : table) {
        show(widgetXml("QLabel", "seen", std::string("xbrScope=Inner;xbrVisibleIf=") + condition) +
             widgetXml("QLineEdit", "styled",
                       std::string("xbrScope=Inner;xbrStyleName=odd;xbrStyleText=It is odd;xbrStyleIf=") +
                           condition));
        for (int state = 4; state >= 0; --state) {
            inner->change("state", state);
            const bool holds = std::find(shown.begin(), shown.end(), state) != shown.end();
            EXPECT_EQ(at<QLabel>("seen").isVisible(), holds) << condition << " at " << state;
            EXPECT_EQ(at<QLineEdit>("styled").property("xbrStyle").toString(),
                      QLatin1String(holds ? "odd" : ""));
            EXPECT_EQ(at<QLineEdit>("styled").accessibleDescription(),
                      QLatin1String(holds ? "It is odd" : ""));
        }
    }
}

TEST_F(Display, aPageTakesTheFocusOfTheOneThatGoes) {
    show("<layout class='QVBoxLayout'><item>" + widgetXml("QLineEdit", "outside", {}) + "</item><item>" +
         widgetXml("QStackedWidget", "pages", "xbrPageSwitch=Inner/state",
                   widgetXml("QWidget", "p0", {}, widgetXml("QLineEdit", "e0", {})) +
                       widgetXml("QWidget", "p1", {},
                                 widgetXml("QLabel", "l1", {}) + widgetXml("QLineEdit", "e1", {})) +
                       widgetXml("QWidget", "p2", {})) +
         "</item></layout>");
    auto& pages = at<QStackedWidget>("pages");
    at<QLineEdit>("e0").setFocus();
    inner->change("state", 1);
    EXPECT_EQ(pages.currentIndex(), 1);
    EXPECT_TRUE(at<QLineEdit>("e1").hasFocus());
    at<QLineEdit>("outside").setFocus();
    inner->change("state", 0);
    EXPECT_TRUE(at<QLineEdit>("outside").hasFocus()); // nobody took it away
    inner->change("state", 2);
    EXPECT_EQ(pages.currentIndex(), 2);
    inner->change("state", 9); // there is no such page
    EXPECT_EQ(pages.currentIndex(), 0);
}

TEST_F(Display, linksOpenWebAddressesOnly) {
    qputenv("PATH", "/nowhere"); // no browser is started here
    std::vector<std::string> opened;
    setBrowserAnnouncer([&](std::string_view url) {
        opened.emplace_back(url);
        return true;
    });
    show(widgetXml("QPushButton", "link", "xbrText=title;xbrLink=Inner/title"));
    auto& link = at<QPushButton>("link");
    root->named("title").set(textValue("Tom & Jerry"));
    EXPECT_EQ(link.text().toStdString(), "Tom && Jerry");
    for (const char* refused : {"", "file:///etc/passwd", "javascript:alert(1)", "https:", "http:///x",
                                "https://me@example.org/", "brindlex://x", "no address", "HTTPS//x"}) {
        inner->named("title").set(textValue(refused));
        EXPECT_FALSE(link.isEnabled()) << refused;
        QTest::mouseClick(&link, Qt::LeftButton);
    }
    for (const char* taken : {"https://example.org/me?a=b#c", "http://example.org"}) {
        inner->named("title").set(textValue(taken));
        QTest::keyClick(&link, Qt::Key_Space);
    }
    EXPECT_EQ(opened, (std::vector<std::string>{"https://example.org/me?a=b#c", "http://example.org"}));
    setBrowserAnnouncer({});
}

TEST_F(Display, cutsTextOffWhereTheWidthIsNotItsOwn) {
    const std::string name(200, 'x');
    show("<layout class='QVBoxLayout'><item>" +
         widgetXml(
             "QPushButton", "who", "xbrText=title",
             "<property name='sizePolicy'><sizepolicy hsizetype='Ignored' vsizetype='Fixed'/></property>") +
         "</item></layout>");
    form->resize(150, 60);
    root->named("title").set(textValue(name));
    auto& who = at<QPushButton>("who");
    EXPECT_LT(who.text().size(), 40);
    EXPECT_TRUE(who.text().endsWith(QChar(0x2026)));
    EXPECT_EQ(who.accessibleName().toStdString(), name);
    form->resize(4000, 60);
    settle();
    EXPECT_EQ(who.text().toStdString(), name);
    EXPECT_LT(form->minimumSizeHint().width(), 100);
}

constexpr Uid kFeedClass = uid("5c0e4a56-7d39-4d31-9b0f-7e0a4a3f3b11");

TEST_F(Display, formsCreateComponentsByClassNameAndShowTheirViews) {
    static const ClassDescription kDescription{0,  kFeedClass, toText("Component"), toText("FeedElement"),
                                               {}, {}};
    static TestController* created = nullptr;
    const auto classes = make<ClassFactory>();
    classes->add(kDescription, [this] {
        auto component = make<TestController>("NewsFeed");
        component->addParameter(Kind::kText, 1, "title").set(textValue("news"));
        created = component.get();
        component->makeView = [this](std::string_view name) {
            return name == "FeedView" ? skin.view("Feed", *created) : nullptr;
        };
        return query<IObject>(static_cast<IController*>(component.get()));
    });
    XBRGetPlugInManager()->addFactory(classes.get());
    skin.addForm("Feed", widgetXml("QLabel", "entry", "xbrText=title"));
    show(widgetXml("QWidget", "feed", "xbrComponent=FeedElement",
                   widgetXml("QLabel", "first", "xbrText=title") +
                       widgetXml("QWidget", "view", "xbrView=FeedView")));
    XBRGetPlugInManager()->removeFactory(classes.get());
    EXPECT_EQ(warnings, "");
    EXPECT_EQ(at<QLabel>("first").text().toStdString(), "news");
    EXPECT_EQ(at<QLabel>("entry").text().toStdString(), "news");
    ASSERT_NE(created->view(), nullptr);
    const auto kept = Ref<TestController>::share(created);
    form.reset();
    EXPECT_EQ(kept->view(), nullptr);
}

TEST_F(Display, theModuleCanBringTheViewToSight) {
    skin.addForm("F", "");
    const auto view = skin.view("F", *root);
    const auto show = query<IShow>(view.get());
    ASSERT_TRUE(show);
    EXPECT_EQ(show->show(), kFalse); // nothing shows it yet
    std::unique_ptr<QWidget> widget(createViewWidget(*view, nullptr));
    EXPECT_EQ(show->show(), kOk);
    EXPECT_TRUE(widget->isVisible());
    int shown = 0;
    setShowAction(*widget, [&] {
        ++shown;
        widget.reset();
    });
    EXPECT_EQ(show->show(), kOk);
    EXPECT_EQ(show->show(), kFalse);
    EXPECT_EQ(shown, 1);
}

} // namespace
} // namespace xbr::host::tests
