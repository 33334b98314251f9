#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "tests/host/system/testfiles.h"

#include <gtest/gtest.h>
#include <zip.h>

namespace xbr::host::tests {
namespace {

/// The bytes of an archive with these entries.
std::string archiveOf(const std::vector<std::pair<std::string, std::string>>& entries,
                      zip_int32_t method = ZIP_CM_DEFLATE) {
    const TestFolder folder;
    const auto path = folder.path() / "archive";
    zip_t* archive = zip_open(path.c_str(), ZIP_CREATE, nullptr);
    for (const auto& [name, bytes] : entries) {
        zip_source_t* source = zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
        const auto index = zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8);
        zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), method, 0);
    }
    zip_close(archive);
    return readFile(path);
}

class ResourcesTest : public testing::Test {
protected:
    ~ResourcesTest() override { files.unregisterResources(toText("brindlex")); }

    Result add(const std::string& bytes) {
        return files.registerResources(toText("brindlex"), bytes.data(), bytes.size());
    }
    /// The text of a resource; "-" when there is none.
    std::string read(const std::string& url) {
        Ref<IStream> stream;
        const auto result = files.openForReading(toText(url), stream.out());
        return result == kOk ? readAll(*stream) : result == kFalse && !stream ? "-" : "failed";
    }

    IFileSystem& files = *XBRGetFileSystem();
};

TEST_F(ResourcesTest, AreReadByTheirExactNames) {
    const auto large = noise(300'000);
    const auto archive = archiveOf({{"gadget.xml", "<Gadget/>"},
                                    {"skin/forms/Axé 1.ui", "form"},
                                    {"empty", ""},
                                    {"../outside", "trap"},
                                    {"large", large}});
    ASSERT_EQ(add(archive), kOk);
    EXPECT_EQ(add(archive), kFalse);
    const std::vector<std::pair<std::string, std::string>> table = {
        {"resource://brindlex/gadget.xml", "<Gadget/>"},
        {"resource://brindlex/skin/forms/Ax%C3%A9%201.ui", "form"},
        {"resource://brindlex/empty", ""},
        {"resource://brindlex/large", large},
        {"resource://brindlex/skin/../gadget.xml", "-"},
        {"resource://brindlex/../../etc/passwd", "-"},
        {"resource://brindlex//etc/passwd", "-"},
        {"resource://brindlex/skin", "-"},
        {"resource://brindlex/", "-"},
        {"resource://brindlex", "-"},
        {"resource://other/gadget.xml", "-"},
        {"resource://brindlex/%zz", "-"},
    };
    for (const auto& [url, text] : table) {
        EXPECT_EQ(read(url), text) << url;
        EXPECT_EQ(files.fileExists(toText(url)), text != "-") << url;
    }
    EXPECT_TRUE(files.folderExists(toText("resource://brindlex/skin/forms")));
    EXPECT_TRUE(files.folderExists(toText("resource://brindlex/skin/")));
    EXPECT_TRUE(files.folderExists(toText("resource://brindlex")));
    EXPECT_FALSE(files.folderExists(toText("resource://brindlex/gadget.xml")));
    EXPECT_FALSE(files.folderExists(toText("resource://other")));

    EXPECT_EQ(files.unregisterResources(toText("brindlex")), kOk);
    EXPECT_EQ(files.unregisterResources(toText("brindlex")), kFalse);
    EXPECT_EQ(read("resource://brindlex/gadget.xml"), "-");
}

TEST_F(ResourcesTest, AStreamOutlivesItsArchive) {
    const auto archive = archiveOf({{"file", "0123456789"}});
    ASSERT_EQ(add(archive), kOk);
    Ref<IStream> stream;
    ASSERT_EQ(files.openForReading(toText("resource://brindlex/file"), stream.out()), kOk);
    files.unregisterResources(toText("brindlex"));
    EXPECT_EQ(measure(*stream), 10);
    EXPECT_EQ(stream->seek(-4, SeekOrigin::kEnd, nullptr), kOk);
    EXPECT_EQ(readAll(*stream), "6789");
    EXPECT_EQ(stream->seek(100, SeekOrigin::kStart, nullptr), kOk);
    EXPECT_EQ(readAll(*stream), "");
    std::uint64_t done = 1;
    EXPECT_EQ(stream->write("x", 1, &done), kNotImplemented);
    EXPECT_EQ(done, 0U);
}

TEST_F(ResourcesTest, DamagedAndOversizedArchivesAreRefused) {
    EXPECT_EQ(add("this is no archive"), kInvalidArgument);
    EXPECT_EQ(add(""), kInvalidArgument);
    auto archive = archiveOf({{"file", "the contents of the file"}}, ZIP_CM_STORE);
    EXPECT_EQ(files.registerResources(toText(""), archive.data(), archive.size()), kInvalidArgument);
    EXPECT_EQ(files.registerResources(toText("a/b"), archive.data(), archive.size()), kInvalidArgument);
    EXPECT_EQ(add(archive.substr(0, archive.size() / 2)), kInvalidArgument);

    archive[archive.find("contents")] = 'C'; // the check sum does not fit any more
    ASSERT_EQ(add(archive), kOk);
    EXPECT_EQ(read("resource://brindlex/file"), "-");
    files.unregisterResources(toText("brindlex"));

    const auto bomb = archiveOf({{"file", std::string(65U << 20U, '\0')}});
    ASSERT_EQ(add(bomb), kOk);
    EXPECT_EQ(read("resource://brindlex/file"), "-");
}

} // namespace
} // namespace xbr::host::tests
