#include "tests/ui/feedfixture.h"

#include <algorithm>

namespace brindlex {

namespace {

using Link = std::map<std::string, std::string>;
using Links = std::vector<Link>;

class FeedTest : public FeedFixture {
protected:
    static std::vector<FakeEntry> manyEntries(int count) {
        std::vector<FakeEntry> entries;
        for (int i = 0; i < count; ++i) {
            entries.push_back({.title = "Entry " + std::to_string(i)});
        }
        return entries;
    }
    static Link enclosure(const char* href, const char* ratio = "", const char* type = "image/png") {
        return {{"rel", "enclosure"}, {"type", type}, {"href", href}, {"devicePixelRatio", ratio}};
    }
    void reloadAll() {
        feed->reloadAll();
        host().signals.pump();
    }
};

TEST_F(FeedTest, OffersTheTextsOfEachEntryInOrder) {
    constexpr std::int64_t kSecondOfJune = 1'748'856'600;
    show({{.title = "First",
           .summary = "Short",
           .content = "Long\ntext",
           .published = kSecondOfJune,
           .links = Links{{{"rel", "self"}, {"href", "https://x.example/self"}},
                          {{"rel", "alternate"}, {"href", "https://x.example/1"}},
                          {{"rel", "alternate"}, {"href", "https://x.example/2"}}}},
          {.title = "Second", .links = Links{{{"rel", "alternate"}, {"href", "https://x.example/3"}}}}});
    EXPECT_EQ(parameters(), "title=First\nsummary=Short\ncontent=Long\ntext\nlink=https://x.example/1\n"
                            "date=2025-6-2/5\n"
                            "title=Second\nsummary=\ncontent=\nlink=https://x.example/3\ndate=1900-1-1/5\n");
    for (const char* name : {"entry0", "entry1"}) {
        const auto entry = xbr::query<xbr::IPropertySource>(feed->findObject(xbr::toText(name)));
        EXPECT_EQ(property(*entry, "hasDate").boolean, name == std::string("entry0"));
    }
    EXPECT_EQ(xbr::textOf(fakehost::shown(*feed, "title")), "First");
    EXPECT_EQ(feed->findParameter(xbr::toText("headline")), nullptr);
    EXPECT_TRUE(!feed->parameterAt(10) && !feed->parameterAt(-1));
}

TEST_F(FeedTest, OffersEachEntryByItself) {
    show(manyEntries(3));
    const auto entry = child("entry1");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry.get(), child("entry1").get());
    EXPECT_EQ(entry->parent(), feed.get());
    EXPECT_EQ(entry->countParameters(), 5);
    EXPECT_EQ(entry->parameterAt(4), feed->parameterAt(9));
    EXPECT_EQ(entry->parameterAt(5), nullptr);
    EXPECT_EQ(entry->findParameter(xbr::toText("link")), feed->parameterAt(8));
    EXPECT_EQ(xbr::query<xbr::IController>(entry->findObject(xbr::toText("image"))).get(),
              child("image1").get());
    show({{.title = "New"}});
    EXPECT_EQ(entry->parent(), nullptr);
    EXPECT_EQ(xbr::textOf(fakehost::shown(*child("entry0"), "title")), "New");
    for (const char* name : {"entry", "entry1", "entry-1", "entry00", "entry0x", "image", "image-1",
                             "image00", "image0x", "image 0", "image99999999999999999999"}) {
        EXPECT_FALSE(child(name)) << name;
    }
}

TEST_F(FeedTest, UsesAsManyEntriesAsItMay) {
    for (const auto& [maximum, used] :
         Rows<int, int>{{-1, 30}, {0, 30}, {-7, 30}, {10, 10}, {30, 30}, {31, 30}, {1, 1}}) {
        feed->setProperty(xbr::toText("maximumEntryCount"), xbr::integerValue(maximum));
        show(manyEntries(30));
        EXPECT_EQ(number("itemCount"), used) << maximum;
        EXPECT_EQ(feed->countParameters(), used * 5) << maximum;
        EXPECT_TRUE(child("image" + std::to_string(used - 1))) << maximum;
        EXPECT_FALSE(child("image" + std::to_string(used))) << maximum;
    }
    feed->setMaximumEntryCount(10);
    EXPECT_EQ(feed->countParameters(), 50) << "the feed that is there counts as well";
}

TEST_F(FeedTest, NamesTheCategoriesOfItsEntries) {
    feed->setMaximumEntryCount(3);
    EXPECT_EQ(number("itemCount"), 0);
    const auto term = [&](const char* name) {
        xbr::Value value{};
        const auto result = feed->getProperty(xbr::toText(name), &value);
        return result == xbr::kOk ? std::string(xbr::textOf(value)) : "(unknown)";
    };
    EXPECT_EQ(term("categoryTerm0"), "") << "answered, and empty";
    show({{.categories = {"Guide", "Music"}}, {}, {.categories = {"Service"}}, {.categories = {"Unused"}}});
    for (const auto& [name, expected] : Rows<const char*, const char*>{{"categoryTerm0", "Guide"},
                                                                       {"categoryTerm1", ""},
                                                                       {"categoryTerm2", "Service"},
                                                                       {"categoryTerm 02x", "Service"},
                                                                       {"categoryTerm-1", ""},
                                                                       {"categoryTerm", "(unknown)"},
                                                                       {"categoryTerm+-1", "(unknown)"},
                                                                       {"category0", "(unknown)"}}) {
        EXPECT_EQ(term(name), expected) << name;
    }
}

TEST_F(FeedTest, ChoosesThePictureForTheDisplay) {
    const auto one = enclosure("https://p.example/1");
    const auto two = enclosure("https://p.example/2", "2x");
    const auto sound = enclosure("https://p.example/s", "", "audio/mpeg");
    // What is fetched on a display of one pixel a point, and on one of more; empty for nothing.
    for (const auto& [links, normal, high] : Rows<Links, std::string, std::string>{
             {{one, two}, "1 x1", "2 x2"},
             {{two, one}, "2 x1", "2 x2"},
             {{enclosure("https://p.example/1", "", "IMAGE/JPEG")}, "1 x1", "1 x1"},
             {{enclosure("https://p.example/3", "3x")}, "3 x1", "3 x1"},
             {{sound}, "", ""},
             {{sound, one}, "", ""},
             {{enclosure("https://p.example/s", "2x", "audio/mpeg"), two}, "", "2 x2"},
             {{{{"rel", "alternate"}, {"type", "image/png"}, {"href", "https://p.example/1"}}}, "", ""},
             {{enclosure("file:///home/mara/private.png")}, "", ""},
             {{enclosure("resource://brindlex/logo.png")}, "", ""},
         }) {
        for (const double scale : {1.0, 1.5}) {
            SCOPED_TRACE(testing::PrintToString(links));
            feed = newFeed(); // with an empty cache
            host().files.files.clear();
            host().downloads.started.clear();
            host().graphics.scale = scale;
            show({{.links = links}});
            const Shown shown(child("image0"));
            const auto& started = host().downloads.started;
            const std::string wanted = scale > 1.0 ? high : normal;
            ASSERT_EQ(started.size(), wanted.empty() ? 1U : 2U) << "the feed, and a picture";
            if (!wanted.empty()) {
                EXPECT_EQ(started[1].url, "https://p.example/" + wanted.substr(0, 1));
                host().downloads.complete(std::string(started[1].url), "201x99");
                EXPECT_EQ(sizeOf(child("image0")), wanted.ends_with("x2") ? "101x50" : "201x99");
            }
        }
    }
}

TEST_F(FeedTest, TakesLocalPicturesForALocalFeed) {
    host().files.files["file:///news/1.png"] = "8x4";
    host().graphics.scale = 2.0;
    host().web.documents["document"] = {{.links = {enclosure("file:///news/1.png", "2x")}}};
    feed->setLocation("file:///news/feed.atom");
    post(*feed, "startDownload");
    host().downloads.complete("file:///news/feed.atom", "document");
    const Shown shown(child("image0"));
    host().downloads.complete("file:///news/1.png", "ignored");
    EXPECT_EQ(sizeOf(child("image0")), "8x4") << "from the file, in its own size";
    EXPECT_EQ(host().files.files.size(), 1U) << "it need not be stored once more";
}

TEST_F(FeedTest, KeepsWhatItHasWhenNoFeedComes) {
    show(manyEntries(2));
    for (const auto& [end, state] : Rows<std::function<void()>, int>{
             {[] { host().downloads.fail(kFeed); }, 3},
             {[] { host().downloads.complete(kFeed, "no feed"); }, 2},
             {[] { host().downloads.complete(kFeed, ""); }, 2},
             {[] { host().downloads.unchanged(kFeed); }, 2},
         }) {
        post(*feed, "restartDownload");
        EXPECT_EQ(number("downloadState"), 1);
        end();
        EXPECT_EQ(number("downloadState"), state);
        EXPECT_EQ(feed->countParameters(), 10);
        EXPECT_EQ(number("itemCount"), 2);
    }
}

TEST_F(FeedTest, DoesNotMixOldAndNew) {
    host().web.documents = {{"old", manyEntries(3)}, {"new", {{.title = "New"}}}};
    post(*feed, "startDownload");
    post(*feed, "startDownload");
    EXPECT_EQ(host().downloads.started.size(), 1U) << "it runs";
    post(*feed, "restartDownload");
    EXPECT_EQ(host().downloads.running(), 1U) << "the first is given up";
    const auto observer = xbr::make<Listener>(*feed);
    std::vector<int> seen;
    observer->hook = [&](const std::string& message) {
        if (message == "changed") {
            seen.push_back(feed->countParameters());
        }
    };
    host().downloads.complete(kFeed, "old");
    post(*feed, "startDownload");
    EXPECT_EQ(host().downloads.started.size(), 2U) << "it is complete";
    post(*feed, "restartDownload");
    host().downloads.complete(kFeed, "new");
    EXPECT_EQ(seen, (std::vector{0, 15, 0, 5}));
    EXPECT_EQ(parameters(), "title=New\nsummary=\ncontent=\nlink=\ndate=1900-1-1/5\n");
    EXPECT_FALSE(child("image1"));
}

TEST_F(FeedTest, LeavesNoOldEntriesBehind) {
    show(manyEntries(3));
    const auto observer = xbr::make<Listener>(*feed);
    observer->hook = [&](const auto&) {
        observer->hook = nullptr;
        feed->setMaximumEntryCount(2);
    };
    post(*feed, "restartDownload");
    host().downloads.complete(kFeed, "new");
    feed->setMaximumEntryCount(1);
    EXPECT_EQ(feed->countParameters(), 5);
    EXPECT_FALSE(child("image1"));
    feed->setLocation("https://other.example/feed");
    EXPECT_EQ(feed->countParameters() + feed->itemCount(), 0);
    EXPECT_FALSE(child("image0"));
}

TEST_F(FeedTest, ReloadsThePicturesThatAreShownAndTheOthersWhenTheyAre) {
    const std::string pictures[] = {"https://p.example/0", "https://p.example/1", "https://p.example/2"};
    std::vector<FakeEntry> entries = manyEntries(4);
    for (std::size_t i = 0; i < 3; ++i) {
        entries[i].links = {enclosure(pictures[i].c_str())};
    }
    show(entries);
    const auto commands = xbr::query<xbr::ICommandList>(static_cast<xbr::IController*>(feed.get()));
    ASSERT_EQ(commands->count(), 1);
    EXPECT_EQ(xbr::toString(commands->categoryAt(0)) + "/" + xbr::toString(commands->nameAt(0)),
              "Feed/Reload All");
    EXPECT_TRUE(commands->isEnabled(0));
    EXPECT_EQ(commands->perform(1), xbr::kFalse);
    const Shown first(child("image0"));
    {
        const Shown second(child("image1"));
        host().downloads.complete(pictures[0], "4x4", {.entityTag = "\"1\""});
        host().downloads.complete(pictures[1], "4x4", {.entityTag = "\"1\""});
    }
    EXPECT_EQ(commands->perform(0), xbr::kOk);
    commands->perform(0);
    host().signals.pump();
    EXPECT_EQ(host().downloads.running(), 1U) << "none twice";
    EXPECT_EQ(sizeOf(child("image0")), "4x4") << "until the new one is there";
    host().downloads.complete(pictures[0], "6x6");
    EXPECT_EQ(sizeOf(child("image0")), "6x6");
    const Shown second(child("image1"));
    const Shown third(child("image2"));
    EXPECT_EQ(sizeOf(child("image1")), "4x4") << "as it was kept";
    host().downloads.complete(pictures[1], "6x6");
    EXPECT_EQ(sizeOf(child("image1")), "6x6");
    host().downloads.fail(pictures[2]);
    EXPECT_TRUE(commands->isEnabled(0));
}

TEST_F(FeedTest, FetchesWhenItsViewIsMadeAndAgainUntilItIsThere) {
    xbr::Ref<xbr::IView> view;
    EXPECT_EQ(feed->createView(xbr::toText("OtherView"), view.out()), xbr::kFalse);
    for (const std::size_t times : {1U, 2U}) {
        ASSERT_EQ(feed->createView(xbr::toText("FeedView"), view.out()), xbr::kOk);
        EXPECT_EQ(host().downloads.started.size(), times - 1) << "posted";
        host().signals.pump();
        reloadAll();
        EXPECT_EQ(host().downloads.started.size(), times) << "it is under way";
        host().downloads.fail(kFeed);
    }
    for (const bool isComplete : {false, true, false}) {
        feed->reloadAll();
        reloadAll();
        EXPECT_EQ(host().downloads.running(), 1U) << "without a feed there is nothing else to reload";
        isComplete ? host().downloads.complete(kFeed, "no feed") : host().downloads.fail(kFeed);
    }
    show(manyEntries(1));
    reloadAll();
    EXPECT_EQ(host().downloads.running(), 0U) << "it is there";
    module.reset();
    EXPECT_EQ(feed->createView(xbr::toText("FeedView"), view.out()), xbr::kFalse) << "no module, no theme";
}

TEST_F(FeedTest, MayGoAtAnyTime) {
    show({{.title = "a", .links = {enclosure("https://p.example/1")}}});
    const auto image = child("image0");
    const Shown shown(image);
    const auto parameter = xbr::Ref<xbr::IParameter>::share(feed->parameterAt(0));
    EXPECT_EQ(image->parent(), static_cast<xbr::IController*>(feed.get()));
    const auto observer = xbr::make<Listener>(*feed);
    observer->hook = [&](const auto&) { feed.reset(); };
    post(*feed, "restartDownload"); // its state changes, and the observer lets go of it
    EXPECT_FALSE(feed);
    EXPECT_EQ(image->parent(), nullptr) << "a view may still hold it";
    parameter->setValue(xbr::textValue("typed"));
    host().downloads.complete("https://p.example/1", "4x4");

    observer->hook = nullptr;
    feed = newFeed();
    show({{.links = {enclosure("https://p.example/1")}}});
    const Shown again(child("image0"));
    feed->reloadAll();
    feed.reset(); // with messages posted and a download running
    host().signals.pump();
}

TEST_F(FeedTest, HasNothingToFetchWithoutAnAllowedLocation) {
    for (const auto& [url, state] : Rows<const char*, int>{{"", 0}, {"ftp://x.example/feed", 3}}) {
        feed->setProperty(xbr::toText("url"), xbr::textValue(url));
        post(*feed, "startDownload");
        EXPECT_EQ(number("downloadState"), state);
        EXPECT_EQ(xbr::textOf(property(*feed, "url")), url);
    }
    EXPECT_TRUE(host().downloads.started.empty());
}

} // namespace

} // namespace brindlex
