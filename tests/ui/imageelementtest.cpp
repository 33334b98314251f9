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

    xbr::Ref<xbr::IController> control() { return xbr::Ref<xbr::IController>::share(image.get()); }
    std::string size() { return sizeOf(control()); }

    void fetch(const std::string& data, const fakehost::FakeTerms& terms = {}) {
        post(*image, "restartDownload");
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
    image->setCache({});
    for (const auto& [mimeType, location, decodedAs] : Rows<const char*, const char*, const char*>{
             {"image/jpeg", "https://p.example/a.png", "jpg"},
             {"image/unheard", "https://p.example/a.png", "png"},
             {"", "https://p.example/a.PNG?x=.jpg", "png"},
             {"", "https://p.example/picture", "(none)"},
             {"", "https://p.example/a.xyz", "(none)"},
         }) {
        image->setMimeType(mimeType);
        image->setLocation(location);
        post(*image, "restartDownload");
        host().downloads.complete(location, "2x2");
        EXPECT_EQ(host().graphics.decoded.back(), decodedAs) << location;
        EXPECT_EQ(size(), "2x2");
    }
}

TEST_F(ImageElementTest, GivesUpTheOldPictureForAnotherLocation) {
    fetch("8x6");
    image->setProperty(xbr::toText("url"), xbr::textValue("https://p.example/b.png"));
    EXPECT_EQ(size(), "(none)");
    post(*image, "startDownload");
    image->setLocation(kPicture);
    EXPECT_EQ(host().downloads.running(), 0U);
    EXPECT_EQ(image->downloadState(), xbr::DownloadState::kIdle);
    post(*image, "startDownload");
    EXPECT_EQ(size(), "8x6") << "it was kept";
}

TEST_F(ImageElementTest, RoundsItsSizeInPointsUp) {
    for (const auto& [pixels, scale, points] : Rows<int, double, int>{
             {200, 2.0, 100}, {1, 2.0, 1}, {-201, 2.0, -101}, {401, 4.0, 101}, {1002, 1000.0, 2}}) {
        EXPECT_EQ(logicalSize(pixels, scale), points) << pixels << "/" << scale;
    }
}

TEST_F(ImageElementTest, HasNoImageOfEmptyOrDamagedData) {
    for (const char* data : {"", "damaged"}) {
        fetch("4x4");
        EXPECT_TRUE(property(*image, "hasImage").boolean);
        EXPECT_FALSE(storedFile().empty());
        post(*image, "restartDownload");
        EXPECT_EQ(xbr::integerOf(property(*image, "downloadState")), 1);
        EXPECT_EQ(size(), "4x4");
        host().downloads.complete(kPicture, data);
        EXPECT_FALSE(property(*image, "hasImage").boolean || image->mayHaveImage());
        EXPECT_EQ(xbr::integerOf(property(*image, "downloadState")), 2) << "the document is there";
        EXPECT_TRUE(storedFile().empty());
    }
}

TEST_F(ImageElementTest, AsksMemoryFirst) {
    fetch("8x6");
    const auto second = newImage();
    const auto high = newImage(2.0);
    post(*second, "startDownload");
    EXPECT_EQ(sizeOf(xbr::Ref<xbr::IController>(second)), "8x6");
    EXPECT_EQ(second->downloadState(), xbr::DownloadState::kComplete);
    EXPECT_EQ(host().downloads.started.size(), 1U);
    post(*high, "startDownload");
    EXPECT_EQ(host().downloads.started.size(), 2U) << "the other scale is another image";
}

TEST_F(ImageElementTest, ShowsItsCopyAndAsksTheServerOnceARun) {
    const auto fetched = [](const char* size) {
        return host().downloads.complete(kPicture, size, {.entityTag = "\"2\"", .lastModified = "Monday"});
    };
    for (const auto& [end, after, asked] : Rows<std::function<bool()>, const char*, std::size_t>{
             {[] { return host().downloads.unchanged(kPicture); }, "8x6", 1},
             {[] { return host().downloads.fail(kPicture); }, "8x6", 2},
             {[&] { return fetched("9x7"); }, "9x7", 1},
         }) {
        startAgain();
        post(*image, "restartDownload");
        fetched("8x6");
        startAgain();
        {
            const Shown shown(control());
            EXPECT_EQ(size(), "8x6") << "before the server has answered";
            ASSERT_EQ(host().downloads.started.size(), 1U);
            EXPECT_EQ(host().downloads.started[0].entityTag, "\"2\"");
            EXPECT_EQ(host().downloads.started[0].lastModified, "Monday");
            EXPECT_TRUE(end());
            EXPECT_EQ(size(), after);
        }
        EXPECT_EQ(size(), "(none)") << "nobody shows it";
        cache->keep(kPicture, 1.0, nullptr); // others were shown meanwhile
        const Shown again(control());
        EXPECT_EQ(size(), after);
        EXPECT_EQ(host().downloads.started.size(), asked);
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
    EXPECT_EQ(size(), "8x6");
    EXPECT_TRUE(host().downloads.started.empty());
    image->setLocation("https://p.example/b.png");
    post(*image, "startDownload");
    host().downloads.fail("https://p.example/b.png");
    EXPECT_FALSE(image->mayHaveImage());
}

TEST_F(ImageElementTest, ShowsNothingThatWasDecodedInVain) {
    for (const auto& [after, meanwhile] : Rows<const char*, std::function<void()>>{
             {"9x7", [] { host().downloads.complete(kPicture, "9x7"); }},
             {"(none)", [] { host().downloads.complete(kPicture, ""); }},
             {"(none)", [this] { image->setLocation("https://p.example/b.png"); }},
             {"(none)", [this] { image->endShowing(); }},
             {"8x6", [] { host().downloads.unchanged(kPicture); }},
         }) {
        startAgain();
        cache->store(kPicture, {{}, {}, true}, "8x6");
        host().graphics.holdsDecoding = true;
        image->beginShowing();
        host().signals.pump();
        EXPECT_TRUE(image->mayHaveImage()) << "the copy is decoded";
        meanwhile();
        host().graphics.endDecoding();
        EXPECT_EQ(size(), after);
    }
}

TEST_F(ImageElementTest, TellsNoRoomAndDamageApart) {
    fetch("8x6");
    startAgain();
    for (const bool hasRoom : {false, true}) {
        host().graphics.hasRoom = false;
        image = newImage();
        post(*image, "startDownload");
        host().graphics.hasRoom = hasRoom; // by the time that the server answers
        EXPECT_TRUE(host().downloads.unchanged(kPicture));
        EXPECT_EQ(size(), hasRoom ? "8x6" : "(none)");
        EXPECT_FALSE(storedFile().empty()) << "it is as good as before";
    }
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
    fetch("8x6", {.mayBeKept = false});
    EXPECT_TRUE(host().files.files.empty());
    host().files.hasCacheFolder = false;
    startAgain();
    fetch("8x6");
    EXPECT_TRUE(host().files.files.empty());
    EXPECT_EQ(size(), "8x6");
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
    const std::string folder = "file:///cache/brindlex/pictures/";
    auto& files = host().files;
    const std::int64_t now = host().system.time;
    files.files[folder + ".xbr-1-1.part"] = "x"; // of a process that died
    files.modified[folder + ".xbr-1-1.part"] = now - PersistentImageCache::kKeepSeconds - 1;
    for (int i = 0; i < 20; ++i) {
        const std::string file = folder + std::to_string(i) + ".picture";
        files.files[file] = std::string(std::size_t{16} << 20U, 'x');
        files.modified[file] = now - 100 + i;
    }
    cache->store(kPicture, {{}, {}, true}, "8x6");
    std::size_t bytes = 0;
    for (const auto& [name, file] : files.files) {
        bytes += file.size();
    }
    EXPECT_LE(bytes, PersistentImageCache::kMaximumBytes);
    EXPECT_GE(bytes, PersistentImageCache::kMaximumBytes / 2);
    EXPECT_TRUE(cache->load(kPicture));
    for (const auto& [name, isThere] :
         Rows<const char*, bool>{{".xbr-1-1.part", false}, {"0.picture", false}, {"19.picture", true}}) {
        EXPECT_EQ(files.files.contains(folder + name), isThere) << name << ": the oldest go first";
    }
}

TEST_F(ImageElementTest, KeepsMemoryWithinItsLimits) {
    for (const auto& [name, size, kept] : Rows<std::string, const char*, const char*>{
             {"1", "1000x1000", "1"},
             {"2", "1000x1000", "21"}, // looked for in this order: the first is wanted last
             {"3", "1000x1000", "31"},
             {"4", "3000x3000", "31"}, // larger than all the room
             {"3", "damaged", "1"},
         }) {
        image->setLocation("https://p.example/" + name);
        post(*image, "restartDownload");
        host().downloads.complete("https://p.example/" + name, size);
        std::string found;
        for (const char each : {'4', '3', '2', '1'}) {
            found += cache->find(std::string("https://p.example/") + each, 1.0) ? std::string(1, each) : "";
        }
        EXPECT_EQ(found, kept);
    }
}

TEST_F(ImageElementTest, TakesACacheFromAForm) {
    const auto object = xbr::query<xbr::IObject>(cache.get());
    image->setCache({});
    EXPECT_EQ(image->setProperty(xbr::toText("cache"), xbr::objectValue(object.get())), xbr::kOk);
    fetch("8x6");
    EXPECT_FALSE(storedFile().empty());
    EXPECT_NE(image->setProperty(xbr::toText("cache"), xbr::textValue("none")), xbr::kOk);
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
