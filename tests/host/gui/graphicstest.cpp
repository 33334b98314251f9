#include "framework/abi/graphics.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/listener.h"
#include "host/gui/hostwidgets.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace xbr::host::test {

namespace {

std::string encoded(int width, int height, const char* format) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(QColor(200, 100, 50, 128));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes.toStdString();
}

std::string bigEndian(std::uint32_t number) {
    return {static_cast<char>(number >> 24U), static_cast<char>(number >> 16U),
            static_cast<char>(number >> 8U), static_cast<char>(number)};
}

std::uint32_t checkSum(const std::string& bytes) {
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char c : bytes) {
        sum ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~sum;
}

/// A PNG whose header claims another size.
std::string claiming(std::uint32_t width, std::uint32_t height) {
    std::string file = encoded(4, 4, "PNG");
    const std::string header = "IHDR" + bigEndian(width) + bigEndian(height) + file.substr(24, 5);
    return file.replace(12, header.size() + 4, header + bigEndian(checkSum(header)));
}

/// Two pictures of 2 x 1 pixels on a larger one: the first red, the second blue.
std::string animation(char width = 2, char height = 1) {
    const std::string frame = std::string("\x2C\0\0\0\0\x02\0\x01\0\0\x02\x02", 12);
    return "GIF89a" + std::string{width, 0, height, 0, '\x80', 0, 0} + std::string("\xFF\0\0\0\0\xFF", 6) +
           frame + std::string("\x04\x0A\0", 3) + frame + std::string("\x0C\x0A\0", 3) + ";";
}

Ref<IFileType> typeOf(const char* extension) {
    Ref<IFileType> type;
    if (extension) {
        XBRGetFileTypeRegistry()->createType(toText(extension), type.out());
    }
    return type;
}

Result decode(const std::string& file, const char* extension, Ref<IImage>& image) {
    const auto stream = make<MemoryStream>();
    stream->write(file);
    rewind(*stream);
    return XBRGetGraphicsHelper()->decodeImage(stream.get(), typeOf(extension).get(), image.out());
}

struct DecodeCase {
    const char* name;
    std::string file;
    const char* extension; ///< null: by the first bytes
    Result result;
};

TEST(Graphics, DecodesWhatItIsToldAndNothingElse) {
    const std::string png = encoded(20, 10, "PNG");
    const std::string jpeg = encoded(20, 10, "JPG");
    const std::string large = encoded(400, 300, "JPG");
    std::string odd("\xFF\xFE\x01\x02", 4); // a comment that looks like many scans
    for (int i = 0; i < 128; ++i) {
        odd += "\xFF\xDA";
    }
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'/>";
    const DecodeCase cases[] = {
        {"png", png, "png", kOk},
        {"upper case", png, "PNG", kOk},
        {"jpeg", jpeg, "jpeg", kOk},
        {"jpg", jpeg, "jpg", kOk},
        {"png by content", png, nullptr, kOk},
        {"jpeg by content", jpeg, nullptr, kOk},
        {"png called jpeg", png, "jpg", kInvalidArgument},
        {"vectors", svg, "svg", kNotImplemented},
        {"vectors by content", svg, nullptr, kNotImplemented},
        {"vectors called png", svg, "png", kInvalidArgument},
        {"icon", encoded(16, 16, "ICO"), "ico", kNotImplemented},
        {"bitmap", encoded(16, 16, "BMP"), nullptr, kNotImplemented},
        {"unknown", "words", "txt", kNotImplemented},
        {"nothing", "", "png", kInvalidArgument},
        {"no pixels", claiming(0, 10), "png", kInvalidArgument},
        {"half a png", png.substr(0, png.size() / 2), "png", kInvalidArgument},
        {"half a jpeg", large.substr(0, large.size() * 3 / 4), "jpg", kInvalidArgument},
        {"half a gif", animation(20, 10).substr(0, 26), "gif", kInvalidArgument},
        {"gif with a comment",
         animation(20, 10).insert(13 + 6, std::string("\x21\xFE\x02"
                                                      "no\0",
                                                      6)),
         "gif", kOk},
        {"jpeg with odd words", jpeg.substr(0, 2) + odd + jpeg.substr(2), "jpg", kOk},
    };
    for (const auto& one : cases) {
        Ref<IImage> image;
        EXPECT_EQ(decode(one.file, one.extension, image), one.result) << one.name;
        EXPECT_EQ(static_cast<bool>(image), one.result == kOk) << one.name;
        if (image) {
            EXPECT_EQ(image->width(), 20) << one.name;
            EXPECT_EQ(image->pixelHeight(), 10) << one.name;
        }
    }
}

TEST(Graphics, TakesTheFirstPictureOfAnAnimation) {
    Ref<IImage> image;
    ASSERT_EQ(decode(animation(), "gif", image), kOk);
    EXPECT_EQ(pixelsOf(*image).pixelColor(1, 0), QColor(Qt::red));
}

TEST(Graphics, DecodesWebPWhereTheSystemCan) {
    const std::string file("RIFF\x1A\0\0\0WEBPVP8L\x0D\0\0\0\x2F\0\0\0\x10\x07\x10\x11\x11\x88\x88\xFE\x07\0",
                           34);
    Ref<IImage> image;
    const bool isOffered = QImageReader::supportedImageFormats().contains("webp");
    EXPECT_EQ(decode(file, nullptr, image), isOffered ? kOk : kNotImplemented);
}

TEST(Graphics, RefusesOversizedPicturesByTheirHeaders) {
    std::string scans = encoded(2000, 2000, "JPG");
    for (int i = 0; i < 100; ++i) {
        scans.insert(scans.size() - 2, std::string("\xFF\xDA\0\x08\x01\x01\0\0\x3F\0\0", 11));
    }
    QElapsedTimer clock;
    clock.start();
    for (const auto& [width, height] : std::vector<std::pair<std::uint32_t, std::uint32_t>>{
             {100'000, 100'000}, {0x7FFFFFFF, 0x7FFFFFFF}, {4097, 4096}, {1, 20'000'000}, {0xFFFFFFFF, 1}}) {
        Ref<IImage> image;
        EXPECT_EQ(decode(claiming(width, height), "png", image), kInvalidArgument) << width << "x" << height;
    }
    Ref<IImage> image;
    EXPECT_EQ(decode(scans, "jpg", image), kInvalidArgument);
    EXPECT_LT(clock.elapsed(), 1000) << "refused before they were decoded";
}

TEST(Graphics, HoldsSoManyPixelsAtATime) {
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

TEST(Graphics, ShowsHighResolutionInFewerPoints) {
    Ref<IImage> image;
    Ref<IImage> high;
    ASSERT_EQ(decode(encoded(201, 99, "PNG"), "png", image), kOk);
    auto* graphics = XBRGetGraphicsHelper();
    ASSERT_EQ(graphics->createHighResolutionImage(image.get(), 101, 50, high.out()), kOk);
    EXPECT_EQ(high->width(), 101);
    EXPECT_EQ(high->height(), 50);
    EXPECT_EQ(high->pixelWidth(), 201);
    EXPECT_EQ(pixelsOf(*high).size(), QSize(201, 99));
    EXPECT_NEAR(pixelsOf(*high).devicePixelRatio(), 1.99, 0.01);
    EXPECT_EQ(pixelsOf(*image).devicePixelRatio(), 1.0);
    Ref<IImage> none;
    EXPECT_EQ(graphics->createHighResolutionImage(image.get(), 0, 50, none.out()), kInvalidArgument);
    EXPECT_EQ(graphics->createHighResolutionImage(nullptr, 1, 1, none.out()), kInvalidArgument);
    EXPECT_GE(graphics->displayScale(), 1.0);
}

/// Begins to decode beside the loop; what comes of it is for `arrived`.
Ref<IDecodingTask> begin(const std::string& file, std::int64_t maximumPixels, Listener& arrived) {
    const auto stream = make<MemoryStream>();
    stream->write(file);
    rewind(*stream);
    Ref<IDecodingTask> task;
    query<IImageDecoder>(XBRGetGraphicsHelper())
        ->decodeLater(stream.get(), nullptr, maximumPixels, task.out());
    arrived.listen(query<ISubject>(task.get()));
    return task;
}

TEST(Graphics, DecodesBesideTheLoopToTheSizeThatIsShown) {
    struct {
        std::string file;
        std::int64_t maximumPixels;
        Result result;
        QSize pixels, points;
    } const cases[] = {
        {encoded(400, 200, "JPG"), 5000, kOk, {100, 50}, {400, 200}},
        {encoded(400, 200, "PNG"), 80'000, kOk, {400, 200}, {400, 200}},
        {animation(), 1, kOk, {1, 1}, {2, 1}},
        {encoded(3000, 1, "PNG"), 100, kOk, {100, 1}, {3000, 1}},
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

TEST(Graphics, LoadsFilesByTheirNames) {
    const QTemporaryDir folder;
    const auto load = [&](const char* name, const std::string& bytes) {
        const std::string url = fileUrl(folder.path().toStdString() + "/" + name);
        if (!bytes.empty()) {
            Ref<IStream> stream;
            XBRGetFileSystem()->createFile(toText(url), stream.out());
            std::uint64_t done = 0;
            stream->write(bytes.data(), bytes.size(), &done);
        }
        Ref<IImage> image;
        return XBRGetGraphicsHelper()->loadImage(toText(url), image.out());
    };
    EXPECT_EQ(load("a b.PNG", encoded(4, 4, "PNG")), kOk);
    EXPECT_EQ(load("plain", encoded(4, 4, "JPG")), kOk);
    EXPECT_EQ(load("wrong.jpg", encoded(4, 4, "PNG")), kInvalidArgument);
    EXPECT_EQ(load("missing.png", ""), kFalse);
}

} // namespace

} // namespace xbr::host::test
