// The news in the panel: its forms around the module's components, with the host's libraries and the stand-in
// of the service.

#include "framework/abi/graphics.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"
#include "tests/host/gui/panel.h"
#include "tests/sandbox/runningservice.h"

#include <QAbstractButton>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace brindlex {

namespace {

/// A widget that is painted in its middle, as labels with a picture are; a picture leaves the corner out.
bool isPainted(QWidget& widget) {
    const QImage seen = widget.grab().toImage();
    return widget.isVisible() &&
           seen.pixel(seen.width() / 2, seen.height() / 3) != seen.pixel(seen.width() - 1, seen.height() - 1);
}

class News : public testing::Test {
protected:
    News() { qputenv("XDG_CACHE_HOME", (m_service.folder() / "cache").c_str()); }

    /// Opens the panel, as after a start of the program, and its news.
    void open(const std::string& path = "/feed.atom") {
        m_forms.open("BrindlexManager", m_service.origin() + path).resize(480, 640);
        at<QAbstractButton>("showNews").click();
    }
    template <class Widget = QWidget>
    Widget& at(const char* name) {
        return m_forms.at<Widget>(name);
    }
    bool waitForState(int state) {
        return QTest::qWaitFor([&] { return at<QStackedWidget>("states").currentIndex() == state; });
    }
    qsizetype countRows() { return at("entries").findChildren<QWidget*>("FeedEntry").size(); }
    bool waitForRows(int count = 1) {
        return QTest::qWaitFor([&] { return countRows() >= count; });
    }

    /// What a row shows, "-" for what it hides.
    std::string row(int index) {
        const auto* entry = at("entries").findChildren<QWidget*>("FeedEntry").at(index);
        std::string texts;
        for (const char* name : {"title", "date", "summary", "readMore"}) {
            const auto* widget = entry->findChild<QWidget*>(name);
            texts += (widget->isVisible() ? widget->property("text").toString().toStdString() : "-") + "|";
        }
        return texts;
    }
    bool hasPicture(int index) {
        return isPainted(*at("entries").findChildren<QLabel*>("picture").at(index));
    }
    /// True when every row that is seen has its picture.
    bool isWholeToBeSeen() {
        auto& view = *at<QScrollArea>("entries").viewport();
        const auto labels = view.findChildren<QLabel*>("picture");
        return std::all_of(labels.begin(), labels.end(), [&](QLabel* label) {
            const QRect place(label->mapTo(&view, QPoint()), label->size());
            return !place.intersects(view.rect()) || isPainted(*label);
        });
    }

    /// "path status" of each request, and a look at what none of them may carry.
    std::vector<std::string> requests() {
        std::vector<std::string> lines;
        for (const auto& entry : nlohmann::json::parse(m_service.log())) {
            lines.push_back(entry["path"].get<std::string>() + " " + entry["status"].dump());
            EXPECT_EQ(entry["authorization"]["present"], false);
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    RunningService m_service;
    xbr::host::tests::PanelForms m_forms;
};

TEST_F(News, takeThePlaceOfThePageWhenTheyAreAskedFor) {
    m_forms.open("BrindlexManager");
    EXPECT_FALSE(at("news").isVisible()) << "there is no address";
    m_forms.open("BrindlexManager", m_service.origin() + "/feed.atom");
    QTest::qWait(100);
    EXPECT_EQ(requests(), std::vector<std::string>()) << "nobody has asked for news yet";
    open();
    EXPECT_FALSE(at("pages").isVisible());
    ASSERT_TRUE(waitForRows(6));
    EXPECT_EQ(row(0),
              "Lossless delivery for every release|Monday, June 2, 2025|FLAC and 24-bit WAV now reach all "
              "stores.|Read more|");
    EXPECT_TRUE(row(1).starts_with("Release planning: Fridays & the week before|"));
    EXPECT_TRUE(row(2).starts_with("Portrait: Hafþór and the 4 <am> sessions|"));
    EXPECT_TRUE(row(3).find("|-|") != std::string::npos) << row(3) << ": it has no date";
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return hasPicture(0) && hasPicture(1) && hasPicture(2) && hasPicture(5); }));
    EXPECT_FALSE(hasPicture(3));
    const std::string high = XBRGetGraphicsHelper()->displayScale() > 1.0 ? "@2x" : "";
    EXPECT_EQ(requests(), (std::vector<std::string>{"/feed.atom 200", "/news/image1" + high + ".png 200",
                                                    "/news/image2@2x.png 200", "/news/image3.png 200",
                                                    "/news/image6" + high + ".png 200"}))
        << "and nothing else";
    at<QAbstractButton>("showPublish").click();
    EXPECT_TRUE(at("pages").isVisible());
    EXPECT_FALSE(at("newsPage").isVisible());
}

TEST_F(News, openTheArticleInTheBrowserFromTheKeyboard) {
    qputenv("PATH", "/nowhere"); // no browser is started here
    std::string opened;
    xbr::host::setBrowserAnnouncer([&](std::string_view url) {
        opened = url;
        return true;
    });
    m_service.addFault(R"({"path":"/old/news","redirect":"/feed.atom","status":301})");
    open("/old/news");
    ASSERT_TRUE(waitForRows());
    auto& more = at<QAbstractButton>("readMore");
    for (int i = 0; i < 4 && !more.hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : m_forms.form.get(),
                        Qt::Key_Tab);
    }
    EXPECT_EQ(more.accessibleName(), "Lossless delivery for every release");
    QTest::keyClick(&more, Qt::Key_Space);
    EXPECT_EQ(opened, m_service.origin() + "/news/1") << "not below the old address of the feed";
    xbr::host::setBrowserAnnouncer({});
}

TEST_F(News, showWhatTheyCanWhenTheServiceFails) {
    const struct {
        const char* fault;
        int state;
        int rows;
    } cases[] = {
        {R"({"path":"/feed.atom","status":500,"body":"no"})", 3, 0},
        {R"({"path":"/feed.atom","reply_stall_ms":5000})", 3, 0},
        {R"({"path":"/feed.atom","body":"<html>Sign in to the network</html>"})", 2, 0},
        {R"({"path":"/feed.atom","delay_ms":300})", 2, 6},
        {R"({"path":"/news/image1.png","status":404,"body":"no","times":9})", 2, 6},
    };
    xbr::host::setIdleLimit(std::chrono::milliseconds(800));
    for (const auto& [fault, state, rows] : cases) {
        m_service.clearFaults();
        m_service.clearLog();
        m_service.addFault(fault);
        open();
        ASSERT_TRUE(waitForState(state)) << fault;
        EXPECT_TRUE(waitForRows(rows)) << fault;
        EXPECT_EQ(at("failedText").isVisible(), state == 3) << fault;
        EXPECT_EQ(at("nothing").isVisible(), state == 2 && rows == 0) << fault;
        EXPECT_EQ(at("reload").isVisible(), state == 2) << fault;
        if (rows == 0) { // the service, or the network, lets us through by now
            at<QAbstractButton>(state == 3 ? "tryAgain" : "reload").click();
            EXPECT_TRUE(waitForRows(6)) << fault;
            EXPECT_FALSE(at("nothing").isVisible()) << fault;
        }
    }
    xbr::host::setIdleLimit(std::chrono::seconds(60));
}

TEST_F(News, mayBeClosedWhileTheyLoad) {
    m_service.addFault(R"({"path":"/feed.atom","delay_ms":200})");
    m_service.addFault(R"({"path":"/news/image1.png","reply_stall_ms":3000})");
    for (const std::size_t begun : {1U, 3U}) {
        open();
        EXPECT_TRUE(QTest::qWaitFor([&] { return requests().size() >= begun; }));
        m_forms.form.reset();
        m_forms.panel.reset();
        m_service.clearLog();
    }
    xbr::host::abortAllRequests();
    QTest::qWait(100);
}

std::string feedOf(int count) {
    std::string feed = "<feed xmlns='http://www.w3.org/2005/Atom'><title>News</title>";
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        feed += "<entry><title>Entry " + number + " of many, with a title of some length</title><summary>" +
                std::string(60, 'x') + " " + std::string(90, 'y') +
                "</summary><link href='https://example.org/" + number +
                "'/><link rel='enclosure' type='image/png' href='/news/image3.png?" + number +
                "'/><updated>2025-06-02T09:30:00Z</updated></entry>";
    }
    return feed + "</feed>";
}

class NewsOf : public News, public testing::WithParamInterface<int> {};

TEST_P(NewsOf, showAllPicturesAndFetchNoneTwice) {
    const int entries = GetParam();
    m_service.addFault(
        nlohmann::json{{"path", "/feed.atom"}, {"body", feedOf(entries)}, {"times", 2}}.dump());
    for (const int wholeOnes : {entries, 0}) { // the second time is a later start
        m_service.clearLog();
        open();
        ASSERT_TRUE(waitForRows());
        auto& area = at<QScrollArea>("entries");
        int atEnd = 0;
        for (int page = 0; page < entries && atEnd < 5; ++page) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return isWholeToBeSeen(); }, 20'000)) << "page " << page;
            EXPECT_LT(countRows(), 40);
            QTest::keyClick(&area, Qt::Key_PageDown);
            QTest::qWait(20);
            atEnd += area.verticalScrollBar()->value() == area.verticalScrollBar()->maximum() ? 1 : 0;
        }
        EXPECT_TRUE(area.findChildren<QLabel*>("title").back()->text().startsWith(
            "Entry " + QString::number(entries - 1) + " "));
        const auto lines = requests();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "/news/image3.png 200"), wholeOnes);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "/news/image3.png 304"), entries - wholeOnes);
    }
}
INSTANTIATE_TEST_SUITE_P(Pictures, NewsOf, testing::Values(30));
INSTANTIATE_TEST_SUITE_P(LargePictures, NewsOf, testing::Values(200, 1000));

} // namespace

} // namespace brindlex
