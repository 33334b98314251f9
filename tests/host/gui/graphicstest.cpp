#include "framework/abi/graphics.h"

#include "framework/support/objects/text.h"
#include "host/base/listener.h"
#include "host/gui/hostwidgets.h"
#include "tests/fixtures/streams.h"
#include "tests/fixtures/testfolder.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTest>
#include <gtest/gtest.h>

namespace xbr::host::test {

namespace {

std::string encoded(int width, int height, const char* format) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(QColor(200, 100, 50, 128));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return buffer.data().toStdString();
}

/// A JPEG whose header claims another size.
std::string claiming(int width, int height) {
    std::string file = encoded(20, 10, "JPG");
    const std::string size = {static_cast<char>(height >> 8), static_cast<char>(height),
                              static_cast<char>(width >> 8), static_cast<char>(width)};
    return file.replace(file.find("\xFF\xC0") + 5, size.size(), size);
}

/// Two pictures of 2 x 1 pixels on a larger one: the first red, the second blue.
std::string animation(char width = 2, char height = 1) {
    const std::string frame = std::string("\x2C\0\0\0\0\x02\0\x01\0\0\x02\x02", 12);
    return "GIF89a" + std::string{width, 0, height, 0, '\x80', 0, 0} + std::string("\xFF\0\0\0\0\xFF", 6) +
           frame + std::string("\x04\x0A\0", 3) + frame + std::string("\x0C\x0A\0", 3) + ";";
}

Result decode(const std::string& file, const char* extension, Ref<IImage>& image) {
    Ref<IFileType> type;
    if (extension) {
        XBRGetFileTypeRegistry()->createType(toText(extension), type.out());
    }
    return XBRGetGraphicsHelper()->decodeImage(streamOf(file).get(), type.get(), image.out());
}

TEST(Graphics, decodesWhatItIsToldAndNothingElse) {
    const std::string png = encoded(20, 10, "PNG");
    const std::string jpeg = encoded(20, 10, "JPG");
    const std::string large = encoded(400, 300, "JPG");
    const std::string scan("\xFF\xDA\0\x08\x01\x01\0\0\x3F\0\0", 11);
    const std::string comment("\xFF\xFE\x01\x02", 4); // one that looks like many scans
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'/>";
    const struct {
        const char* name;
        std::string file;
        const char* extension; ///< null: by the first bytes
        Result result;
    } cases[] = {
        {"png in upper case", png, "PNG", kOk},
        {"jpeg", jpeg, "jpeg", kOk},
        {"jpg", jpeg, "jpg", kOk},
        {"png by content", png, nullptr, kOk},
        {"jpeg by content", jpeg, nullptr, kOk},
        {"png called jpeg", png, "jpg", kInvalidArgument},
        {"vectors", svg, "svg", kNotImplemented},
        {"vectors by content", svg, nullptr, kNotImplemented},
        {"icon", encoded(16, 16, "ICO"), "ico", kNotImplemented},
        {"nothing", "", "png", kInvalidArgument},
        {"half a png", png.substr(0, png.size() / 2), "png", kInvalidArgument},
        {"half a jpeg", large.substr(0, large.size() * 3 / 4), "jpg", kInvalidArgument},
        {"half a gif", animation(20, 10).substr(0, 26), "gif", kInvalidArgument},
        {"gif with a comment", animation(20, 10).insert(19, std::string("\x21\xFE\x02no\0", 6)), "gif", kOk},
        {"odd words", jpeg.substr(0, 2) + comment + repeated("\xFF\xDA", 128) + jpeg.substr(2), "jpg", kOk},
        {"many scans", jpeg.substr(0, jpeg.size() - 2) + repeated(scan, 64) + "\xFF\xD9", "jpg",
         kInvalidArgument},
        {"a pixel too many", claiming(4097, 4096), "jpg", kInvalidArgument},
        {"far too large", claiming(65500, 65500), "jpg", kInvalidArgument},
    };
    for (const auto& [name, file, extension, result] : cases) {
        Ref<IImage> image;
        EXPECT_EQ(decode(file, extension, image), result) << name;
        ASSERT_EQ(static_cast<bool>(image), result == kOk) << name;
        EXPECT_TRUE(!image || (image->width() == 20 && image->pixelHeight() == 10)) << name;
    }
    Ref<IImage> first;
    ASSERT_EQ(decode(animation(), "gif", first), kOk);
    EXPECT_EQ(pixelsOf(*first).pixelColor(1, 0), QColor(Qt::red));
    const std::string webp("RIFF\x1A\0\0\0WEBPVP8L\x0D\0\0\0\x2F\0\0\0\x10\x07\x10\x11\x11\x88\x88\xFE\x07\0",
                           34);
    const bool isOffered = QImageReader::supportedImageFormats().contains("webp");
    EXPECT_EQ(decode(webp, nullptr, first), isOffered ? kOk : kNotImplemented);
}

TEST(Graphics, holdsSoManyPixelsAtATime) {
    const std::string large = encoded(4096, 4096, "PNG");
    std::vector<Ref<IImage>> alive(4);
    for (auto& image : alive) {
        ASSERT_EQ(decode(large, "png", image), kOk);
    }
    Ref<IImage> more;
    EXPECT_EQ(decode(encoded(4, 4, "PNG"), "png", more), kUnexpected);
    Ref<IImage> shared;
    XBRGetGraphicsHelper()->createHighResolutionImage(alive[0].get(), 10, 10, shared.out());
    alive[0].reset();
    EXPECT_EQ(decode(large, "png", more), kUnexpected) << "the pixels live on in the other image";
    shared.reset();
    EXPECT_EQ(decode(large, "png", more), kOk);
}

TEST(Graphics, showsHighResolutionInFewerPoints) {
    Ref<IImage> image;
    Ref<IImage> high;
    ASSERT_EQ(decode(encoded(201, 99, "PNG"), "png", image), kOk);
    auto* graphics = XBRGetGraphicsHelper();
    ASSERT_EQ(graphics->createHighResolutionImage(image.get(), 101, 50, high.out()), kOk);
    EXPECT_EQ(QSize(high->width(), high->height()), QSize(101, 50));
    EXPECT_EQ(high->pixelWidth(), 201);
    EXPECT_EQ(pixelsOf(*high).size(), QSize(201, 99));
    EXPECT_EQ(pixelsOf(*high).constBits(), pixelsOf(*image).constBits()) << "shared by both";
    EXPECT_EQ(graphics->createHighResolutionImage(image.get(), 0, 50, high.out()), kInvalidArgument);
    EXPECT_EQ(graphics->createHighResolutionImage(nullptr, 1, 1, high.out()), kInvalidArgument);
    EXPECT_GE(graphics->displayScale(), 1.0);
}

/// Begins to decode beside the loop; what comes of it is for `arrived`.
Ref<IDecodingTask> begin(const std::string& file, std::int64_t maximumPixels, Listener& arrived) {
    Ref<IDecodingTask> task;
    query<IImageDecoder>(XBRGetGraphicsHelper())
        ->decodeLater(streamOf(file).get(), nullptr, maximumPixels, task.out());
    arrived.listen(query<ISubject>(task.get()));
    return task;
}

TEST(Graphics, decodesBesideTheLoopToTheSizeThatIsShown) {
    const struct {
        std::string file;
        std::int64_t maximumPixels;
        Result result;
        QSize pixels, points;
    } cases[] = {
        {encoded(400, 200, "JPG"), 5000, kOk, {100, 50}, {400, 200}},
        {encoded(400, 200, "PNG"), 80'000, kOk, {400, 200}, {400, 200}},
        {animation(), 1, kOk, {1, 1}, {2, 1}},
        {encoded(3000, 1, "PNG"), 100, kOk, {100, 1}, {3000, 1}},
        {encoded(1, 3000, "PNG"), 100, kOk, {1, 100}, {1, 3000}},
        {"words", 100, kNotImplemented, {}, {}},
        {encoded(400, 200, "JPG").substr(0, 500), 100, kInvalidArgument, {}, {}},
    };
    for (const auto& one : cases) {
        int told = 0;
        Listener arrived([&](ISubject*, const IMessage&) { ++told; });
        const auto task = begin(one.file, one.maximumPixels, arrived);
        Ref<IImage> image;
        EXPECT_EQ(task->getImage(image.out()), kFalse);
        EXPECT_TRUE(QTest::qWaitFor([&] { return told > 0; }));
        EXPECT_EQ(task->getImage(image.out()), one.result);
        if (image) {
            EXPECT_EQ(QSize(image->pixelWidth(), image->pixelHeight()), one.pixels);
            EXPECT_EQ(QSize(image->width(), image->height()), one.points);
        }
    }
    const std::string large = encoded(2000, 2000, "PNG");
    for (int i = 0; i < 20; ++i) { // nobody waits for them
        Listener gone([](ISubject*, const IMessage&) { FAIL(); });
        begin(large, 100, gone);
    }
    QTest::qWait(50);
}

TEST(Graphics, loadsFilesByTheirNames) {
    const TestFolder folder;
    folder.write("a b.PNG", encoded(4, 4, "PNG"));
    folder.write("plain", encoded(4, 4, "JPG"));
    folder.write("wrong.jpg", encoded(4, 4, "PNG"));
    for (const auto& [name, result] : {std::pair{"a b.PNG", kOk},
                                       {"plain", kOk},
                                       {"wrong.jpg", kInvalidArgument},
                                       {"missing.png", kFalse}}) {
        Ref<IImage> image;
        EXPECT_EQ(XBRGetGraphicsHelper()->loadImage(toText(folder.url(name)), image.out()), result) << name;
    }
}

} // namespace

} // namespace xbr::host::test
