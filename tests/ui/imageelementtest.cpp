#include "tests/ui/feedfixture.h"
#include "ui/pictures/persistentimagecache.h"
#include "ui/pictures/picturechoice.h"
#include "ui/pictures/picturefile.h"

namespace brindlex {

namespace {

const std::string kPicture = "https://p.example/a.png?sig=a%2Fb";

class ImageElementTest : public FeedFixture {
protected:
    ImageElementTest() {
        host().fileTypes.mimeTypes = {{"png", "image/png"}, {"jpg", "image/jpeg"}};
        cache = xbr::make<PersistentImageCache>();
        image = newImage();
    }

    xbr::Ref<ImageElement> newImage(double scale = 1.0) {
        auto made = xbr::make<ImageElement>("image0");
        made->setLocation(kPicture);
        made->setCache(cache);
        made->setScale(scale);
        return made;
    }

    /// As after a start of the program: nothing in memory.
    void startAgain() {
        cache = xbr::make<PersistentImageCache>();
        image = newImage();
        host().downloads.started.clear();
    }

    static std::string sizeOf(ImageElement& element) {
        xbr::Ref<xbr::IImage> found;
        return element.getImage(found.out()) == xbr::kOk
                   ? std::to_string(found->width()) + "x" + std::to_string(found->height())
                   : "(none)";
    }

    xbr::Ref<xbr::IController> control() { return xbr::Ref<xbr::IController>::share(image.get()); }

    void fetch(const std::string& data, const fakehost::FakeTerms& terms = {}) {
        post(*image, "startDownload");
        ASSERT_TRUE(host().downloads.complete(kPicture, data, terms));
    }

    static std::string storedFile() {
        const std::string name = "file:///cache/brindlex/pictures/" + pictureFileName(kPicture);
        return host().files.files.contains(name) ? name : std::string();
    }

    xbr::Ref<PersistentImageCache> cache;
    xbr::Ref<ImageElement> image;
};

TEST_F(ImageElementTest, DecodesAsTheTypeThatIsDeclared) {
    struct {
        const char* mimeType;
        const char* location;
        const char* decodedAs;
    } const cases[] = {
        {"image/jpeg", "https://p.example/a.png", "jpg"},    {"", "https://p.example/a.PNG?x=.jpg", "png"},
        {"image/unheard", "https://p.example/a.png", "png"}, {"", "https://p.example/picture", "(none)"},
        {"", "https://p.example/a.xyz", "(none)"},
    };
    image->setCache({});
    for (const auto& one : cases) {
        host().graphics.decoded.clear();
        image->setMimeType(one.mimeType);
        image->setLocation(one.location);
        post(*image, "restartDownload");
        host().downloads.complete(one.location, "2x2");
        EXPECT_EQ(host().graphics.decoded, std::vector<std::string>{one.decodedAs}) << one.location;
        EXPECT_EQ(sizeOf(*image), "2x2");
    }
}

TEST_F(ImageElementTest, GivesUpTheOldPictureForAnotherLocation) {
    fetch("8x6");
    EXPECT_EQ(image->setProperty(xbr::toText("url"), xbr::textValue("https://p.example/b.png")), xbr::kOk);
    EXPECT_EQ(sizeOf(*image), "(none)");
    post(*image, "startDownload");
    image->setLocation(kPicture);
    EXPECT_EQ(host().downloads.running(), 0U);
    EXPECT_EQ(image->downloadState(), xbr::DownloadState::kIdle);
    post(*image, "startDownload");
    EXPECT_EQ(sizeOf(*image), "8x6") << "it was kept";
}

TEST_F(ImageElementTest, RoundsItsSizeInPointsUp) {
    struct {
        std::int32_t pixels;
        double scale;
        std::int32_t points;
    } const cases[] = {{201, 2.0, 101},   {200, 2.0, 100},    {0, 2.0, 0},     {1, 2.0, 1},
                       {-201, 2.0, -101}, {-200, 2.0, -100},  {401, 4.0, 101}, {1000, 999.0, 1},
                       {1002, 1000.0, 2}, {-1002, 1000.0, -2}};
    for (const auto& one : cases) {
        EXPECT_EQ(logicalSize(one.pixels, one.scale), one.points) << one.pixels << "/" << one.scale;
    }
}

TEST_F(ImageElementTest, HasNoImageOfEmptyOrDamagedData) {
    const auto observer = xbr::make<FeedObserver>(*image);
    for (const char* data : {"", "damaged"}) {
        fetch("4x4");
        EXPECT_TRUE(property(*image, "hasImage").boolean);
        EXPECT_FALSE(storedFile().empty());
        post(*image, "restartDownload");
        EXPECT_EQ(xbr::integerOf(property(*image, "downloadState")), 1);
        EXPECT_EQ(sizeOf(*image), "4x4");
        host().downloads.complete(kPicture, data);
        EXPECT_FALSE(property(*image, "hasImage").boolean || image->mayHaveImage());
        EXPECT_EQ(xbr::integerOf(property(*image, "downloadState")), 2) << "the document is there";
        EXPECT_TRUE(storedFile().empty());
        startAgain();
    }
    EXPECT_FALSE(observer->heard.empty());
}

TEST_F(ImageElementTest, LoadsAFileAsItIs) {
    host().files.files["file:///news/a.png"] = "10x6";
    image = newImage(2.0);
    image->setLocation("file:///news/a.png");
    post(*image, "startDownload");
    host().downloads.complete("file:///news/a.png", "99x99");
    EXPECT_EQ(sizeOf(*image), "10x6") << "from the file, in its own size";
    EXPECT_EQ(host().files.files.size(), 1U) << "a file need not be stored once more";
}

TEST_F(ImageElementTest, AsksMemoryFirst) {
    fetch("8x6");
    const auto second = newImage();
    const auto high = newImage(2.0);
    post(*second, "startDownload");
    EXPECT_EQ(sizeOf(*second), "8x6");
    EXPECT_EQ(second->downloadState(), xbr::DownloadState::kComplete);
    EXPECT_EQ(host().downloads.started.size(), 1U);
    post(*high, "startDownload");
    EXPECT_EQ(host().downloads.started.size(), 2U) << "the other scale is another image";
}

TEST_F(ImageElementTest, ShowsItsCopyAndAsksTheServerOnceARun) {
    const auto fetched = [](const char* size) {
        return host().downloads.complete(kPicture, size, {.entityTag = "\"2\"", .lastModified = "Monday"});
    };
    struct {
        const char* name;
        std::function<bool()> end;
        const char* shown;
    } const cases[] = {
        {"unchanged", [] { return host().downloads.unchanged(kPicture); }, "8x6"},
        {"out of reach", [] { return host().downloads.fail(kPicture); }, "8x6"},
        {"changed", [&] { return fetched("9x7"); }, "9x7"},
    };
    for (const auto& one : cases) {
        startAgain();
        post(*image, "restartDownload");
        fetched("8x6");
        startAgain();
        {
            const Shown shown(control());
            EXPECT_EQ(sizeOf(*image), "8x6") << one.name << ": before the server has answered";
            ASSERT_EQ(host().downloads.started.size(), 1U);
            EXPECT_EQ(host().downloads.started[0].entityTag, "\"2\"");
            EXPECT_EQ(host().downloads.started[0].lastModified, "Monday");
            EXPECT_TRUE(one.end()) << one.name;
            EXPECT_EQ(sizeOf(*image), one.shown) << one.name;
        }
        EXPECT_EQ(sizeOf(*image), "(none)") << one.name << ": nobody shows it";
        cache->keep(kPicture, 1.0, nullptr); // others were shown meanwhile
        const Shown again(control());
        EXPECT_EQ(sizeOf(*image), one.shown) << one.name;
        EXPECT_EQ(host().downloads.started.size(), one.name == std::string("out of reach") ? 2U : 1U);
    }
}

TEST_F(ImageElementTest, LetsGoOfWhatNobodyShows) {
    image->beginShowing();
    image->endShowing();
    host().signals.pump();
    EXPECT_TRUE(host().downloads.started.empty()) << "it went by too quickly";
    {
        const Shown shown(control());
        EXPECT_EQ(host().downloads.running(), 1U);
        EXPECT_TRUE(image->mayHaveImage());
    }
    EXPECT_EQ(host().downloads.running(), 0U) << "its turn is for others";
    {
        const Shown shown(control());
        const Shown twice(control());
        host().downloads.complete(kPicture, "8x6");
        host().downloads.started.clear();
    }
    EXPECT_FALSE(property(*image, "hasImage").boolean);
    const Shown again(control());
    EXPECT_EQ(sizeOf(*image), "8x6");
    EXPECT_TRUE(host().downloads.started.empty());
    image->setLocation("https://p.example/b.png");
    post(*image, "startDownload");
    host().downloads.fail("https://p.example/b.png");
    EXPECT_FALSE(image->mayHaveImage());
}

TEST_F(ImageElementTest, ShowsNothingThatWasDecodedInVain) {
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"9x7", [] { host().downloads.complete(kPicture, "9x7"); }},
        {"(none)", [] { host().downloads.complete(kPicture, ""); }},
        {"(none)", [this] { image->setLocation("https://p.example/b.png"); }},
        {"(none)", [this] { image->endShowing(); }},
        {"8x6", [] { host().downloads.unchanged(kPicture); }},
    };
    for (const auto& [shown, meanwhile] : cases) {
        startAgain();
        cache->store(kPicture, {{}, {}, true}, "8x6");
        host().graphics.holdsDecoding = true;
        image->beginShowing();
        host().signals.pump();
        EXPECT_EQ(host().graphics.held.size(), 1U) << "the copy is decoded";
        EXPECT_TRUE(image->mayHaveImage());
        meanwhile();
        host().graphics.endDecoding();
        EXPECT_EQ(sizeOf(*image), shown);
    }
}

TEST_F(ImageElementTest, TellsNoRoomAndDamageApart) {
    fetch("8x6");
    startAgain();
    host().graphics.hasRoom = false;
    post(*image, "startDownload");
    EXPECT_TRUE(host().downloads.unchanged(kPicture));
    EXPECT_EQ(sizeOf(*image), "(none)");
    EXPECT_FALSE(storedFile().empty()) << "it is as good as before";
    host().graphics.hasRoom = true;
    image = newImage();
    post(*image, "startDownload");
    EXPECT_EQ(sizeOf(*image), "8x6");
    EXPECT_TRUE(host().downloads.unchanged(kPicture));
}

TEST_F(ImageElementTest, FetchesAgainWhenTheCopyIsDamaged) {
    fetch("8x6", {.entityTag = "\"1\""});
    const std::string file = storedFile();
    const std::string whole = host().files.files[file];
    for (const auto& damaged : {whole.substr(0, whole.size() - 1), whole + "x",
                                "brindlex picture 1" + whole.substr(18), std::string(), std::string("x"),
                                whole.substr(0, 20), std::string("brindlex picture 2\n\n\n\n\n")}) {
        host().files.files[file] = damaged;
        startAgain();
        fetch("8x6");
        EXPECT_EQ(host().downloads.started[0].entityTag, "") << "nothing is known";
        EXPECT_TRUE(cache->load(kPicture)) << "replaced";
    }
}

TEST_F(ImageElementTest, StoresNothingThatMustNotBeKeptOrHasNoPlace) {
    fetch("8x6");
    EXPECT_FALSE(storedFile().empty());
    post(*image, "restartDownload");
    host().downloads.complete(kPicture, "8x6", {.mayBeKept = false});
    EXPECT_TRUE(host().files.files.empty());
    host().files.hasCacheFolder = false;
    startAgain();
    fetch("8x6");
    EXPECT_TRUE(host().files.files.empty());
    EXPECT_EQ(sizeOf(*image), "8x6");
}

TEST_F(ImageElementTest, TellsLocationsOfOneNameApart) {
    fetch("8x6");
    EXPECT_EQ(pictureFileName("a"), "af63dc4c8601ec8c.picture") << "earlier runs named their files so";
    auto stored = *cache->load(kPicture);
    stored.location = "https://p.example/other.png";
    host().files.files[storedFile()] = writePicture(stored);
    EXPECT_FALSE(cache->load(kPicture));
}

TEST_F(ImageElementTest, KeepsTheFolderWithinItsLimits) {
    const auto add = [&](const std::string& name, std::size_t size, std::int64_t modified) {
        const std::string file = "file:///cache/brindlex/pictures/" + name;
        host().files.files[file] = std::string(size, 'x');
        host().files.modified[file] = modified;
    };
    const std::int64_t now = host().system.time;
    add(".xbr-1-1.part", 1, now - PersistentImageCache::kKeepSeconds - 1); // of a process that died
    for (int i = 0; i < 20; ++i) {
        add(std::to_string(i) + ".picture", std::size_t{16} << 20U, now - 100 + i);
    }
    cache->store(kPicture, {{}, {}, true}, "8x6");
    std::size_t bytes = 0;
    for (const auto& [name, file] : host().files.files) {
        bytes += file.size();
    }
    EXPECT_LE(bytes, PersistentImageCache::kMaximumBytes);
    EXPECT_GE(bytes, PersistentImageCache::kMaximumBytes / 2);
    EXPECT_TRUE(cache->load(kPicture));
    for (const auto& [name, isThere] :
         {std::pair(".xbr-1-1.part", false), std::pair("0.picture", false), std::pair("19.picture", true)}) {
        EXPECT_EQ(host().files.files.contains(std::string("file:///cache/brindlex/pictures/") + name),
                  isThere)
            << name << ": the oldest go first";
    }
}

TEST_F(ImageElementTest, KeepsMemoryWithinItsLimits) {
    const auto load = [&](const std::string& location, const std::string& size) {
        image->setLocation(location);
        post(*image, "restartDownload");
        host().downloads.complete(location, size);
    };
    load("https://p.example/1", "1400x1400");
    load("https://p.example/2", "1400x1400");
    EXPECT_TRUE(cache->find("https://p.example/1", 1.0)) << "wanted last now";
    load("https://p.example/3", "1400x1400");
    EXPECT_TRUE(cache->find("https://p.example/1", 1.0));
    EXPECT_FALSE(cache->find("https://p.example/2", 1.0));
    load("https://p.example/4", "3000x3000");
    EXPECT_FALSE(cache->find("https://p.example/4", 1.0)) << "larger than all the room";
    EXPECT_TRUE(cache->find("https://p.example/3", 1.0));
    load("https://p.example/3", "damaged");
    EXPECT_FALSE(cache->find("https://p.example/3", 1.0));
}

TEST_F(ImageElementTest, TakesACacheFromAForm) {
    const auto object = xbr::query<xbr::IObject>(cache.get());
    image->setCache({});
    EXPECT_EQ(image->setProperty(xbr::toText("cache"), xbr::objectValue(object.get())), xbr::kOk);
    fetch("8x6");
    EXPECT_FALSE(storedFile().empty());
    const auto other = xbr::query<xbr::IObject>(image.get());
    EXPECT_EQ(image->setProperty(xbr::toText("cache"), xbr::objectValue(other.get())), xbr::kOk)
        << "no cache";
    post(*image, "restartDownload");
    EXPECT_EQ(host().downloads.started.back().entityTag, "");
    host().downloads.fail(kPicture);
    EXPECT_EQ(cache->retain(), 3U) << "two of this test's and this one";
    cache->release();
}

} // namespace

} // namespace brindlex
