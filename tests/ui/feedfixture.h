#pragma once

#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "tests/fakehost/fakehost.h"
#include "ui/news/feedelement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {

using fakehost::FakeEntry;
using fakehost::host;
using fakehost::Listener;
using fakehost::property;
using fakehost::Rows;

/// Shows a picture, as a form does.
class Shown {
public:
    explicit Shown(const xbr::Ref<xbr::IController>& image)
        : m_image(xbr::query<xbr::IShownImage>(static_cast<xbr::IObject*>(image.get()))) {
        m_image->beginShowing();
        host().signals.pump();
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    ~Shown() { m_image->endShowing(); }

private:
    xbr::Ref<xbr::IShownImage> m_image;
};

inline const std::string kFeed = "https://news.example/feed.atom";

/// The module's news in a started module.
class FeedFixture : public testing::Test {
protected:
    FeedFixture() {
        fakehost::resetHost();
        module = xbr::make<xbr::ModuleComponent>("brindlex", "Kestrova", "Brindlex Support", "");
        module->loadTheme("");
        feed = newFeed();
    }
    ~FeedFixture() override {
        feed.reset();
        EXPECT_EQ(host().signals.remaining(), 0U);
        EXPECT_EQ(host().downloads.running(), 0U);
    }

    static xbr::Ref<FeedElement> newFeed() {
        auto made = xbr::make<FeedElement>();
        made->setLocation(kFeed);
        return made;
    }

    static void post(xbr::IObserver& element, const char* message) {
        xbr::post(element, message);
        host().signals.pump();
    }

    /// Makes the feed show these entries.
    void show(const std::vector<FakeEntry>& entries) {
        host().web.documents["document"] = entries;
        post(*feed, "restartDownload");
        ASSERT_TRUE(host().downloads.complete(kFeed, "document"));
    }

    std::int64_t number(const char* name) { return xbr::integerOf(property(*feed, name), -1); }

    /// All parameters as "name=value" lines.
    std::string parameters() {
        std::string text;
        for (std::int32_t i = 0; i < feed->countParameters(); ++i) {
            auto* parameter = feed->parameterAt(i);
            EXPECT_EQ(parameter->tag(), 100 + i);
            text +=
                xbr::toString(parameter->name()) + "=" + std::string(xbr::textOf(parameter->value())) + "\n";
        }
        return text;
    }

    xbr::Ref<xbr::IController> child(const std::string& name) {
        return xbr::query<xbr::IController>(feed->findObject(xbr::toText(name)));
    }

    /// The size of a picture, "(none)" without one.
    static std::string sizeOf(const xbr::Ref<xbr::IController>& element) {
        const auto source = xbr::query<xbr::IImageSource>(element.get());
        xbr::Ref<xbr::IImage> image;
        return source && source->getImage(image.out()) == xbr::kOk
                   ? std::to_string(image->width()) + "x" + std::to_string(image->height())
                   : "(none)";
    }

    xbr::Ref<xbr::ModuleComponent> module;
    xbr::Ref<FeedElement> feed;
};

} // namespace brindlex
