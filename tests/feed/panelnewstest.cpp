// The news in the panel: its forms around the module's components, with the host's libraries and the stand-in
// of the service.

#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "host/system/hostsystem.h"
#include "tests/host/gui/panel.h"
#include "tests/sandbox/runningservice.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>

namespace brindlex {

namespace {

using xbr::host::tests::Panel;
using xbr::host::tests::PanelSkin;

class PanelNews : public testing::Test {
protected:
    PanelNews() : m_module("brindlex", "Kestrova", "Brindlex Support", "1"), m_skin(BRINDLEX_ARCHIVE) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): the service's thread reads no variables
        setenv("XDG_CACHE_HOME", (m_service.folder() / "cache").c_str(), 1);
        m_module.loadTheme("resource://brindlex/skin");
    }
    ~PanelNews() override { form.reset(); }

    void open(const std::string& url) {
        PanelSkin::setNews(url);
        panel = xbr::make<Panel>();
        form = m_skin.widget("BrindlexManager", *panel);
        form->resize(480, 640);
        form->show();
        QApplication::setActiveWindow(form.get());
        QCoreApplication::processEvents();
    }
    void openNews(const std::string& path = "/feed.atom") {
        open(m_service.origin() + path);
        at<QAbstractButton>("showNews").click();
    }
    template <class Widget>
    Widget& at(const char* name) {
        auto* found = form->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    int state() { return at<QStackedWidget>("states").currentIndex(); }
    qsizetype countRows() { return form->findChildren<QWidget*>("FeedEntry").size(); }
    bool waitForRows(int count = 1) {
        return QTest::qWaitFor([this, count] { return countRows() >= count; });
    }

    /// What a row shows under these names, "-" for what it hides.
    std::string row(int index) {
        const auto* entry = form->findChildren<QWidget*>("FeedEntry").at(index);
        std::string texts;
        for (const char* name : {"title", "summary", "readMore"}) {
            const auto* widget = entry->findChild<QWidget*>(name);
            texts += (widget->isVisible() ? widget->property("text").toString().toStdString() : "-") + "|";
        }
        return texts;
    }
    bool hasPicture(int index) {
        return isPainted(*form->findChildren<QWidget*>("FeedEntry").at(index)->findChild<QLabel*>("picture"));
    }
    static bool isPainted(QLabel& label) {
        const QImage seen = label.grab().toImage();
        const QRgb corner = seen.pixel(seen.width() - 1, seen.height() - 1); // a picture leaves it out
        return label.isVisible() && seen.pixel(seen.width() / 2, seen.height() / 3) != corner;
    }
    /// True when every row that is seen has its picture.
    bool isWholeToBeSeen() {
        const auto& area = at<QScrollArea>("entries");
        const auto labels = area.findChildren<QLabel*>("picture");
        return std::all_of(labels.begin(), labels.end(), [&](QLabel* label) {
            const QRect place(label->mapTo(area.viewport(), QPoint()), label->size());
            return !place.intersects(area.viewport()->rect()) || isPainted(*label);
        });
    }
    nlohmann::json log() { return nlohmann::json::parse(m_service.log()); }
    int requests() { return static_cast<int>(log().size()); }

    RunningService m_service;
    xbr::Ref<Panel> panel;
    std::unique_ptr<QWidget> form;

private:
    xbr::ModuleComponent m_module;
    PanelSkin m_skin;
};

TEST_F(PanelNews, areNotThereWithoutAnAddress) {
    open({});
    EXPECT_FALSE(at<QWidget>("news").isVisible());
    EXPECT_TRUE(at<QWidget>("pages").isVisible());
}

TEST_F(PanelNews, takeThePlaceOfThePageWhenTheyAreAskedFor) {
    open(m_service.origin() + "/feed.atom");
    QTest::qWait(100);
    EXPECT_EQ(requests(), 0) << "nobody has asked for news yet";
    at<QAbstractButton>("showNews").click();
    EXPECT_FALSE(at<QWidget>("pages").isVisible());
    ASSERT_TRUE(waitForRows(6));
    EXPECT_EQ(countRows(), 6);
    EXPECT_EQ(row(0),
              "Lossless delivery for every release|FLAC and 24-bit WAV now reach all stores.|Read more|");
    EXPECT_EQ(row(2).substr(0, row(2).find('|')), "Portrait: Hafþór and the 4 <am> sessions");
    EXPECT_TRUE(QTest::qWaitFor([this] { return hasPicture(0) && hasPicture(1) && hasPicture(2); }));
    EXPECT_FALSE(hasPicture(3));
    at<QAbstractButton>("showPublish").click();
    EXPECT_TRUE(at<QWidget>("pages").isVisible());
    EXPECT_FALSE(at<QWidget>("newsPage").isVisible());
}

TEST_F(PanelNews, openTheArticleInTheBrowserFromTheKeyboard) {
    qputenv("PATH", "/nowhere"); // no browser is started here
    std::string opened;
    xbr::host::setBrowserAnnouncer([&](std::string_view url) {
        opened = url;
        return true;
    });
    openNews();
    ASSERT_TRUE(waitForRows());
    auto& more = at<QAbstractButton>("readMore");
    for (int i = 0; i < 4 && !more.hasFocus(); ++i) {
        QTest::keyClick(form->focusWidget() ? form->focusWidget() : form.get(), Qt::Key_Tab);
    }
    EXPECT_EQ(more.accessibleName(), "Lossless delivery for every release");
    QTest::keyClick(&more, Qt::Key_Space);
    EXPECT_EQ(opened, m_service.origin() + "/news/1");
    xbr::host::setBrowserAnnouncer({});
}

TEST_F(PanelNews, tellThatTheyCouldNotBeLoadedAndTryAgain) {
    m_service.addFault(R"({"path":"/feed.atom","status":500,"body":"no"})");
    openNews();
    ASSERT_TRUE(QTest::qWaitFor([this] { return state() == 3; }));
    EXPECT_TRUE(at<QLabel>("failedText").isVisible());
    EXPECT_FALSE(at<QWidget>("reload").isVisible());
    at<QAbstractButton>("tryAgain").click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return state() == 2; }));
    ASSERT_TRUE(waitForRows());
    EXPECT_TRUE(at<QWidget>("reload").isVisible());
}

TEST_F(PanelNews, sayWhenThereAreNone) {
    m_service.addFault(R"({"path":"/feed.atom","body":"<html>Sign in to the network</html>"})");
    openNews();
    ASSERT_TRUE(QTest::qWaitFor([this] { return at<QWidget>("nothing").isVisible(); }));
    EXPECT_FALSE(at<QWidget>("entries").isVisible());
    at<QAbstractButton>("reload").click(); // the network lets us through by now
    EXPECT_TRUE(waitForRows());
    EXPECT_FALSE(at<QWidget>("nothing").isVisible());
}

std::string feedOf(int count) {
    std::string feed = "<feed xmlns='http://www.w3.org/2005/Atom'><title>News</title>";
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        feed.append("<entry><title>Entry ")
            .append(number)
            .append(" of many, with a title of some length</title><summary>");
        feed.append(60, 'x').append(" ").append(90, 'y');
        feed.append("</summary><link href='https://example.org/").append(number);
        feed.append("'/><link rel='enclosure' type='image/png' href='/news/image3.png?").append(number);
        feed.append("'/><updated>2025-06-02T09:30:00Z</updated></entry>");
    }
    return feed + "</feed>";
}

TEST_F(PanelNews, showThePicturesOfAllEntriesAndFetchNoneTwice) {
    constexpr int kEntries = 200;
    m_service.addFault(
        nlohmann::json{{"path", "/feed.atom"}, {"body", feedOf(kEntries)}, {"times", 2}}.dump());
    for (const int wholeOnes : {kEntries, 0}) { // the second time is a later start
        m_service.clearLog();
        openNews();
        ASSERT_TRUE(waitForRows());
        auto& area = at<QScrollArea>("entries");
        int atEnd = 0;
        for (int page = 0; page < kEntries && atEnd < 5; ++page) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return isWholeToBeSeen(); }, 20'000)) << "page " << page;
            EXPECT_LT(countRows(), 60);
            QTest::keyClick(&area, Qt::Key_PageDown);
            QTest::qWait(20);
            atEnd += area.verticalScrollBar()->value() == area.verticalScrollBar()->maximum() ? 1 : 0;
        }
        EXPECT_EQ(area.findChildren<QLabel*>("title").back()->text().left(9), "Entry 199");
        int whole = 0;
        int unchanged = 0;
        for (const auto& entry : log()) {
            whole += entry["path"] == "/news/image3.png" && entry["status"] == 200 ? 1 : 0;
            unchanged += entry["status"] == 304 ? 1 : 0;
        }
        EXPECT_EQ(whole, wholeOnes);
        EXPECT_EQ(unchanged, kEntries - wholeOnes);
        form.reset();
    }
}

} // namespace

} // namespace brindlex
