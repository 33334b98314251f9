// The news as the panel shows them: the module's components, the host's libraries and the stand-in of the
// service.

#include "framework/support/objects/text.h"
#include "host/net/hostnet.h"
#include "tests/sandbox/runningservice.h"
#include "ui/news/feedelement.h"

#include <QApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {

namespace {

using nlohmann::json;

bool spinUntil(const std::function<bool()>& done) {
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < 10'000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    return done();
}

class NewsTest : public testing::Test {
protected:
    NewsTest() {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): the service's thread reads no variables
        setenv("XDG_CACHE_HOME", (m_service.folder() / "cache").c_str(), 1);
        open();
    }

    /// As after a start of the program: nothing in memory.
    void open(const std::string& path = "/feed.atom") {
        feed = xbr::make<FeedElement>();
        feed->setLocation(m_service.origin() + path);
        m_service.clearLog();
    }

    /// Fetches the feed and its pictures. False when there is no feed.
    bool fetch() {
        feed->startDownload();
        spinUntil([this] { return feed->downloadState() != xbr::DownloadState::kRunning; });
        for (std::int32_t i = 0; i < feed->itemCount(); ++i) {
            xbr::query<xbr::IShownImage>(image(i))->beginShowing();
        }
        return spinUntil([this] { return isSettled(); }) && feed->itemCount() > 0;
    }

    std::string text(std::int32_t entry, std::int32_t parameter) {
        return std::string(xbr::textOf(feed->parameterAt(entry * 5 + parameter)->value()));
    }

    std::string picture(std::int32_t entry) {
        const auto source = xbr::query<xbr::IImageSource>(image(entry));
        xbr::Ref<xbr::IImage> found;
        return source->getImage(found.out()) == xbr::kOk
                   ? std::to_string(found->width()) + "x" + std::to_string(found->height())
                   : "(none)";
    }
    std::vector<std::string> pictures() {
        std::vector<std::string> sizes;
        for (std::int32_t i = 0; i < feed->itemCount(); ++i) {
            sizes.push_back(picture(i));
        }
        return sizes;
    }

    /// "path status" of each request, and a look at what none of them may carry.
    std::vector<std::string> requests() {
        std::vector<std::string> lines;
        for (const auto& entry : json::parse(m_service.log())) {
            lines.push_back(entry["path"].get<std::string>() + " " +
                            std::to_string(entry["status"].get<int>()));
            EXPECT_EQ(entry["authorization"]["present"], false);
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    xbr::IObject* image(std::int32_t entry) {
        return feed->findObject(xbr::toText("image" + std::to_string(entry)));
    }
    RunningService m_service;
    xbr::Ref<FeedElement> feed;

private:
    /// True when each picture has come, or will not.
    bool isSettled() {
        for (std::int32_t i = 0; i < feed->itemCount(); ++i) {
            xbr::Value state{};
            xbr::query<xbr::IPropertySource>(image(i))->getProperty(xbr::toText("downloadState"), &state);
            const bool isDue = xbr::query<xbr::IShownImage>(image(i))->mayHaveImage();
            if (isDue && (xbr::integerOf(state) < 2 || picture(i) == "(none)")) {
                return false;
            }
        }
        return true;
    }
};

TEST_F(NewsTest, ShowEntriesWithTheirPicturesForTheDisplay) {
    ASSERT_TRUE(fetch());
    EXPECT_EQ(text(0, 0), "Lossless delivery for every release");
    EXPECT_EQ(text(1, 0), "Release planning: Fridays & the week before");
    EXPECT_EQ(text(2, 0), "Portrait: Hafþór and the 4 <am> sessions");
    EXPECT_EQ(text(0, 3), m_service.origin() + "/news/1");
    EXPECT_EQ(text(0, 4), "Monday, 2 June 2025");
    EXPECT_EQ(text(3, 4), "Monday, 1 January 1900");
    const bool isHigh = XBRGetGraphicsHelper()->displayScale() > 1.0;
    const std::vector<std::string> sizes = {
        "320x180", isHigh ? "320x180" : "640x360", "320x180", "(none)", "(none)", "201x113"};
    EXPECT_EQ(pictures(), sizes);
    const std::string high = isHigh ? "@2x" : "";
    EXPECT_EQ(requests(), (std::vector<std::string>{"/feed.atom 200", "/news/image1" + high + ".png 200",
                                                    "/news/image2@2x.png 200", "/news/image3.png 200",
                                                    "/news/image6" + high + ".png 200"}))
        << "and nothing else";
}

TEST_F(NewsTest, ShowWhatTheyCanWhenTheServiceFails) {
    struct {
        const char* fault;
        bool hasFeed;
        int state;
    } const cases[] = {
        {R"({"path":"/feed.atom","status":500,"body":"no"})", false, 3},
        {R"({"path":"/feed.atom","truncate":true})", false, 3},
        {R"({"path":"/feed.atom","reset_after":0})", false, 3},
        {R"({"path":"/feed.atom","reply_stall_ms":5000})", false, 3},
        {R"({"path":"/feed.atom","body":"x","body_repeat":9000000})", false, 3},
        {R"({"path":"/feed.atom","body":"<html>Sign in to the network</html>"})", false, 2},
        {R"({"path":"/feed.atom","redirect":"ftp://127.0.0.1/feed.atom"})", false, 3},
        {R"({"path":"/feed.atom","redirect":"/elsewhere"})", false, 3},
        {R"({"path":"/feed.atom","delay_ms":300})", true, 2},
        {R"({"path":"/news/image1.png","status":404,"body":"no","times":9})", true, 2},
        {R"({"path":"/news/image3.png","truncate":true,"times":9})", true, 2},
    };
    xbr::host::setIdleLimit(std::chrono::milliseconds(800));
    for (const auto& one : cases) {
        m_service.clearFaults();
        m_service.addFault(one.fault);
        open();
        EXPECT_EQ(fetch(), one.hasFeed) << one.fault;
        EXPECT_EQ(static_cast<int>(feed->downloadState()), one.state) << one.fault;
        EXPECT_EQ(feed->itemCount(), one.hasFeed ? 6 : 0) << one.fault;
    }
    xbr::host::setIdleLimit(std::chrono::seconds(60));
}

TEST_F(NewsTest, FollowTheFeedToItsNewPlace) {
    m_service.addFault(R"({"path":"/old/news","redirect":"/feed.atom","status":301})");
    open("/old/news");
    ASSERT_TRUE(fetch());
    EXPECT_EQ(text(0, 3), m_service.origin() + "/news/1") << "not below the old one";
    EXPECT_EQ(picture(0), "320x180");
}

TEST_F(NewsTest, MayBeClosedWhileTheyLoad) {
    m_service.addFault(R"({"path":"/feed.atom","delay_ms":200})");
    feed->startDownload();
    spinUntil(
        [this] { return !requests().empty() || feed->downloadState() != xbr::DownloadState::kRunning; });
    feed.reset();
    open();
    m_service.addFault(R"({"path":"/news/image1.png","reply_stall_ms":3000})");
    feed->startDownload();
    spinUntil([this] { return feed->itemCount() > 0; });
    xbr::query<xbr::IShownImage>(image(0))->beginShowing();
    spinUntil([this] { return requests().size() > 1; });
    feed.reset();
    QElapsedTimer clock;
    clock.start();
    xbr::host::abortAllRequests();
    spinUntil([&] { return clock.elapsed() > 100; });
}

} // namespace

} // namespace brindlex

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* name : {"http_proxy", "https_proxy", "all_proxy", "HTTPS_PROXY", "ALL_PROXY"}) {
        qunsetenv(name);
    }
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
        qputenv(name, "C");
    }
    qputenv("TZ", "UTC");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
