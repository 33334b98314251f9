#include "tests/ui/feedfixture.h"
#include "ui/news/feedlistcomponent.h"

#include <algorithm>

namespace brindlex {

namespace {

using Links = std::vector<std::map<std::string, std::string>>;

class FeedTest : public FeedFixture {};

std::vector<FakeEntry> manyEntries(int count) {
    std::vector<FakeEntry> entries;
    for (int i = 0; i < count; ++i) {
        entries.push_back({.title = "Entry " + std::to_string(i)});
    }
    return entries;
}

TEST_F(FeedTest, OffersTheTextsOfEachEntryInOrder) {
    constexpr std::int64_t kSecondOfJune = 1'748'856'600;
    show({{.title = "First",
           .summary = "Short",
           .content = "Long\ntext",
           .published = kSecondOfJune,
           .links = Links{{{"rel", "self"}, {"href", "https://x.example/self"}},
                          {{"rel", "alternate"}, {"href", "https://x.example/1"}},
                          {{"rel", "alternate"}, {"href", "https://x.example/2"}}}},
          {.title = "Second"}});
    EXPECT_EQ(parameters(), "title=First\nsummary=Short\ncontent=Long\ntext\nlink=https://x.example/1\n"
                            "date=2025-6-2/5\n"
                            "title=Second\nsummary=\ncontent=\nlink=\ndate=1900-1-1/5\n");
    EXPECT_TRUE(property(*properties("entry0"), "hasDate").boolean);
    EXPECT_FALSE(property(*properties("entry1"), "hasDate").boolean);
    EXPECT_EQ(xbr::textOf(feed->findParameter(xbr::toText("title"))->value()), "First");
    EXPECT_EQ(feed->findParameter(xbr::toText("headline")), nullptr);
    EXPECT_EQ(feed->parameterAt(10), nullptr);
    EXPECT_EQ(feed->parameterAt(-1), nullptr);
    EXPECT_EQ(xbr::view(feed->name()), "NewsFeed");
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
    EXPECT_EQ(xbr::textOf(child("entry0")->findParameter(xbr::toText("title"))->value()), "New");
    for (const char* name : {"entry", "entry1", "entry-1", "entry00", "entry0x"}) {
        EXPECT_FALSE(child(name)) << name;
    }
}

TEST_F(FeedTest, ReloadsTheFeedWhenThereIsNone) {
    post(*feed, "startDownload");
    for (const bool isComplete : {false, true, false}) {
        isComplete ? host().downloads.complete(kFeed, "no feed") : host().downloads.fail(kFeed);
        host().downloads.started.clear();
        feed->reloadAll();
        feed->reloadAll();
        host().signals.pump();
        EXPECT_EQ(host().downloads.running(), 1U) << isComplete;
    }
    host().feeds.documents["document"] = manyEntries(1);
    ASSERT_TRUE(host().downloads.complete(kFeed, "document"));
    feed->reloadAll();
    host().signals.pump();
    EXPECT_EQ(host().downloads.running(), 0U) << "it is there";
}

TEST_F(FeedTest, UsesAsManyEntriesAsItMay) {
    const std::pair<int, int> cases[] = {{-1, 30}, {0, 30}, {-7, 30}, {10, 10}, {30, 30}, {31, 30}, {1, 1}};
    for (const auto& [maximum, used] : cases) {
        feed->setProperty(xbr::toText("maximumEntryCount"), xbr::integerValue(maximum));
        show(manyEntries(30));
        EXPECT_EQ(number("itemCount"), used) << maximum;
        EXPECT_EQ(feed->countParameters(), used * 5) << maximum;
        EXPECT_TRUE(child("image" + std::to_string(used - 1))) << maximum;
        EXPECT_FALSE(child("image" + std::to_string(used))) << maximum;
    }
    for (const char* name :
         {"image", "image-1", "image00", "image0x", "image 0", "image99999999999999999999"}) {
        EXPECT_FALSE(child(name)) << name;
    }
    feed->setMaximumEntryCount(10);
    EXPECT_EQ(feed->countParameters(), 50) << "the feed that is there counts as well";
}

TEST_F(FeedTest, NamesTheCategoriesOfItsEntries) {
    feed->setMaximumEntryCount(3);
    EXPECT_EQ(number("itemCount"), 0);
    EXPECT_EQ(property(*feed, "categoryTerm0").kind, xbr::ValueKind::kNone) << "answered, and empty";
    show({{.categories = {"Guide", "Music"}}, {}, {.categories = {"Service"}}, {.categories = {"Unused"}}});
    const std::pair<const char*, const char*> cases[] = {
        {"categoryTerm0", "Guide"},      {"categoryTerm1", ""},
        {"categoryTerm2", "Service"},    {"categoryTerm+2", "Service"},
        {"categoryTerm 02x", "Service"}, {"categoryTerm3", ""},
        {"categoryTerm-1", ""},          {"categoryTerm99999999999999999999", ""}};
    for (const auto& [name, term] : cases) {
        EXPECT_EQ(xbr::textOf(property(*feed, name)), term) << name;
    }
    for (const char* name : {"categoryTerm", "categoryTermX", "categoryTerm+-1", "category0"}) {
        property(*feed, name, xbr::kFalse);
    }
}

struct PictureCase {
    const char* name;
    Links links;
    const char* normal; ///< what is fetched on a display of one pixel a point; empty for nothing
    const char* high;   ///< and on one of more
};

TEST_F(FeedTest, ChoosesThePictureForTheDisplay) {
    const auto enclosure = [](const char* type, const char* href, const char* ratio = "") {
        return std::map<std::string, std::string>{
            {"rel", "enclosure"}, {"type", type}, {"href", href}, {"devicePixelRatio", ratio}};
    };
    const std::string base = "https://p.example/";
    const PictureCase cases[] = {
        {"both",
         {enclosure("image/png", "https://p.example/1"), enclosure("image/png", "https://p.example/2", "2x")},
         "1 x1",
         "2 x2"},
        {"highFirst",
         {enclosure("image/png", "https://p.example/2", "2x"), enclosure("image/png", "https://p.example/1")},
         "2 x1",
         "2 x2"},
        {"normalOnly", {enclosure("IMAGE/JPEG", "https://p.example/1")}, "1 x1", "1 x1"},
        {"otherRatio", {enclosure("image/png", "https://p.example/3", "3x")}, "3 x1", "3 x1"},
        {"sound", {enclosure("audio/mpeg", "https://p.example/s")}, "", ""},
        {"soundFirst",
         {enclosure("audio/mpeg", "https://p.example/s"), enclosure("image/png", "https://p.example/1")},
         "",
         ""},
        {"soundAndHigh",
         {enclosure("audio/mpeg", "https://p.example/s", "2x"),
          enclosure("image/png", "https://p.example/2", "2x")},
         "",
         "2 x2"},
        {"noEnclosure",
         {{{"rel", "alternate"}, {"type", "image/png"}, {"href", "https://p.example/1"}}},
         "",
         ""},
        {"fileOfTheUser", {enclosure("image/png", "file:///home/mara/private.png")}, "", ""},
        {"resource", {enclosure("image/png", "resource://brindlex/logo.png")}, "", ""},
    };
    for (const auto& one : cases) {
        for (const double scale : {1.0, 1.5}) {
            feed = xbr::make<FeedElement>(); // with an empty cache
            feed->setLocation(kFeed);
            host().files.files.clear();
            host().downloads.started.clear();
            host().graphics.scale = scale;
            show({{.links = one.links}});
            const Shown shown(child("image0"));
            const std::string wanted = scale > 1.0 ? one.high : one.normal;
            const auto picked = host().downloads.started.size() == 2
                                    ? host().downloads.started[1].url.substr(base.size())
                                    : std::string();
            EXPECT_EQ(picked, wanted.substr(0, wanted.find(' '))) << one.name << scale;
            if (!picked.empty()) {
                host().downloads.complete(base + picked, "201x99");
                EXPECT_EQ(picture("image0"), wanted.ends_with("x2") ? "101x50" : "201x99") << one.name;
            }
        }
    }
}

TEST_F(FeedTest, TakesLocalPicturesForALocalFeed) {
    host().files.files["file:///news/1.png"] = "8x4";
    host().feeds.documents["document"] = {
        {.links = Links{{{"rel", "enclosure"}, {"type", "image/png"}, {"href", "file:///news/1.png"}}}}};
    feed->setLocation("file:///news/feed.atom");
    post(*feed, "startDownload");
    host().downloads.complete("file:///news/feed.atom", "document");
    const Shown shown(child("image0"));
    host().downloads.complete("file:///news/1.png", "ignored");
    EXPECT_EQ(picture("image0"), "8x4");
}

TEST_F(FeedTest, KeepsWhatItHasWhenNoFeedComes) {
    show(manyEntries(2));
    const auto fetchAgain = [&](const std::function<void()>& end, int state) {
        post(*feed, "restartDownload");
        EXPECT_EQ(number("downloadState"), 1);
        end();
        EXPECT_EQ(number("downloadState"), state);
        EXPECT_EQ(feed->countParameters(), 10);
        EXPECT_EQ(number("itemCount"), 2);
    };
    fetchAgain([] { host().downloads.fail(kFeed); }, 3);
    fetchAgain([] { host().downloads.complete(kFeed, "no feed"); }, 2);
    fetchAgain([] { host().downloads.complete(kFeed, ""); }, 2);
    fetchAgain([] { host().downloads.unchanged(kFeed); }, 2);
}

TEST_F(FeedTest, DoesNotMixOldAndNew) {
    host().feeds.documents["old"] = manyEntries(3);
    host().feeds.documents["new"] = {{.title = "New"}};
    post(*feed, "startDownload");
    post(*feed, "startDownload");
    EXPECT_EQ(host().downloads.started.size(), 1U) << "it runs";
    post(*feed, "restartDownload");
    EXPECT_EQ(host().downloads.running(), 1U) << "the first is given up";
    const auto observer = xbr::make<FeedObserver>(*feed);
    std::vector<std::string> seen;
    observer->hook = [&] {
        if (observer->heard.back() == "changed") {
            seen.push_back(std::to_string(feed->countParameters()));
        }
    };
    host().downloads.complete(kFeed, "old");
    post(*feed, "startDownload");
    EXPECT_EQ(host().downloads.started.size(), 2U) << "it is complete";
    post(*feed, "restartDownload");
    host().downloads.complete(kFeed, "new");
    EXPECT_EQ(seen, (std::vector<std::string>{"0", "15", "0", "5"}));
    EXPECT_EQ(parameters(), "title=New\nsummary=\ncontent=\nlink=\ndate=1900-1-1/5\n");
    EXPECT_FALSE(child("image1"));
}

TEST_F(FeedTest, LeavesNoOldEntriesBehind) {
    show(manyEntries(3));
    const auto observer = xbr::make<FeedObserver>(*feed);
    observer->hook = [&] {
        observer->hook = nullptr;
        feed->setMaximumEntryCount(2);
    };
    post(*feed, "restartDownload");
    host().downloads.complete(kFeed, "new");
    feed->setMaximumEntryCount(1);
    EXPECT_EQ(feed->countParameters(), 5);
    EXPECT_FALSE(child("image1"));
    feed->setLocation("https://other.example/feed");
    EXPECT_EQ(feed->countParameters(), 0);
    EXPECT_EQ(feed->itemCount(), 0);
    EXPECT_FALSE(child("image0"));
}

TEST_F(FeedTest, ReloadsThePicturesThatAreShownAndTheOthersWhenTheyAre) {
    std::vector<FakeEntry> entries = manyEntries(4);
    const auto picture = [](int entry) { return "https://p.example/" + std::to_string(entry); };
    for (int i = 0; i < 3; ++i) {
        entries[static_cast<std::size_t>(i)].links =
            Links{{{"rel", "enclosure"}, {"type", "image/png"}, {"href", picture(i)}}};
    }
    show(entries);
    const auto commands = xbr::query<xbr::ICommandList>(static_cast<xbr::IController*>(feed.get()));
    ASSERT_EQ(commands->count(), 1);
    EXPECT_EQ(xbr::view(commands->categoryAt(0)), "Feed");
    EXPECT_EQ(xbr::view(commands->nameAt(0)), "Reload All");
    EXPECT_TRUE(commands->isEnabled(0));
    EXPECT_EQ(commands->perform(1), xbr::kFalse);
    const Shown first(child("image0"));
    {
        const Shown second(child("image1"));
        host().downloads.complete(picture(0), "4x4", {.entityTag = "\"1\""});
        host().downloads.complete(picture(1), "4x4", {.entityTag = "\"1\""});
    }
    host().downloads.started.clear();
    EXPECT_EQ(commands->perform(0), xbr::kOk);
    commands->perform(0);
    host().signals.pump();
    EXPECT_EQ(host().downloads.running(), 1U) << "none twice";
    EXPECT_EQ(this->picture("image0"), "4x4") << "until the new one is there";
    host().downloads.complete(picture(0), "6x6");
    EXPECT_EQ(this->picture("image0"), "6x6");
    const Shown second(child("image1"));
    const Shown third(child("image2"));
    EXPECT_EQ(this->picture("image1"), "4x4") << "as it was kept";
    host().downloads.complete(picture(1), "6x6");
    EXPECT_EQ(this->picture("image1"), "6x6");
    host().downloads.fail(picture(2));
    EXPECT_TRUE(commands->isEnabled(0));
}

TEST_F(FeedTest, FetchesWhenItsViewIsMade) {
    xbr::Ref<xbr::IView> view;
    EXPECT_EQ(feed->createView(xbr::toText("OtherView"), view.out()), xbr::kFalse);
    ASSERT_EQ(feed->createView(xbr::toText("FeedView"), view.out()), xbr::kOk);
    EXPECT_EQ(xbr::view(view->formName()), "FeedView");
    EXPECT_TRUE(host().downloads.started.empty()) << "posted";
    host().signals.pump();
    EXPECT_EQ(host().downloads.started.size(), 1U);
    host().downloads.fail(kFeed);
    feed->createView(xbr::toText("FeedView"), view.out());
    host().signals.pump();
    EXPECT_EQ(host().downloads.started.size(), 2U) << "tried again";
    feed->reloadAll();
    host().signals.pump();
    EXPECT_EQ(host().downloads.started.size(), 2U) << "it is under way";
    host().downloads.fail(kFeed);
    feed->reloadAll();
    host().signals.pump();
    EXPECT_EQ(host().downloads.started.size(), 3U) << "without a feed there is nothing else to reload";
    module.reset();
    EXPECT_EQ(feed->createView(xbr::toText("FeedView"), view.out()), xbr::kFalse) << "no module, no theme";
}

TEST_F(FeedTest, MayGoAtAnyTime) {
    const Links links{{{"rel", "enclosure"}, {"type", "image/png"}, {"href", "https://p.example/1"}}};
    show({{.title = "a", .links = links}});
    const auto image = child("image0");
    const Shown shown(image);
    const auto parameter = xbr::Ref<xbr::IParameter>::share(feed->parameterAt(0));
    EXPECT_EQ(image->parent(), static_cast<xbr::IController*>(feed.get()));
    const auto observer = xbr::make<FeedObserver>(*feed);
    observer->hook = [&] { feed.reset(); };
    post(*feed, "restartDownload"); // its state changes, and the observer lets go of it
    EXPECT_FALSE(feed);
    EXPECT_EQ(image->parent(), nullptr) << "a view may still hold it";
    parameter->setValue(xbr::textValue("typed"));
    host().downloads.complete("https://p.example/1", "4x4");

    observer->hook = nullptr;
    feed = xbr::make<FeedElement>();
    feed->setLocation(kFeed);
    show({{.links = links}});
    const Shown again(child("image0"));
    feed->reloadAll();
    feed.reset(); // with messages posted and a download running
    host().signals.pump();
}

TEST_F(FeedTest, HasNothingToFetchWithoutAnAllowedLocation) {
    feed->setProperty(xbr::toText("url"), xbr::textValue(""));
    post(*feed, "startDownload");
    EXPECT_EQ(number("downloadState"), 0);
    feed->setProperty(xbr::toText("url"), xbr::textValue("ftp://x.example/feed"));
    post(*feed, "startDownload");
    EXPECT_EQ(number("downloadState"), 3);
    EXPECT_EQ(xbr::textOf(property(*feed, "url")), "ftp://x.example/feed");
    EXPECT_TRUE(host().downloads.started.empty());
}

TEST(FeedListTest, HoldsANumber) {
    fakehost::resetHost();
    const auto list = xbr::make<FeedListComponent>();
    ASSERT_EQ(list->countParameters(), 1);
    EXPECT_EQ(xbr::view(list->name()), "FeedList");
    EXPECT_EQ(xbr::view(list->parameterAt(0)->name()), "feedList");
    EXPECT_EQ(list->parameterAt(0)->setValue(xbr::integerValue(7)), xbr::kOk);
    EXPECT_EQ(xbr::integerOf(list->parameterAt(0)->value()), 7);
}

} // namespace

} // namespace brindlex
