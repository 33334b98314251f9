#include "framework/support/data/memorystream.h"
#include "tests/host/system/filesfixture.h"

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
    ~ResourcesTest() override { remove(); }

    Result add(const std::string& bytes, std::string_view name = "brindlex") {
        return files.registerResources(toText(name), bytes.data(), bytes.size());
    }
    Result remove() { return files.unregisterResources(toText("brindlex")); }
    /// The text of a resource; "-" when there is none.
    std::string read(const std::string& path) {
        const auto result = files.openForReading(toText("resource://" + path), stream.out());
        return result == kOk ? readAll(*stream) : result == kFalse && !stream ? "-" : "failed";
    }

    IFileSystem& files = *XBRGetFileSystem();
    Ref<IStream> stream;
};

TEST_F(ResourcesTest, AreReadByTheirExactNames) {
    const auto large = noise(300'000);
    const auto archive = archiveOf({{"gadget.xml", "<Gadget/>"},
                                    {"skin/forms/Axé 1.ui", "form"},
                                    {"empty", ""},
                                    {"../outside", "trap"},
                                    {"large", large}});
    EXPECT_EQ(add(archive, ""), kInvalidArgument);
    EXPECT_EQ(add(archive, "a/b"), kInvalidArgument);
    ASSERT_EQ(add(archive), kOk);
    EXPECT_EQ(add(archive), kFalse);
    const std::pair<const char*, std::string> table[] = {
        {"brindlex/gadget.xml", "<Gadget/>"},
        {"brindlex/skin/forms/Ax%C3%A9%201.ui", "form"},
        {"brindlex/empty", ""},
        {"brindlex/large", large},
        {"brindlex/skin/../gadget.xml", "-"},
        {"brindlex//etc/passwd", "-"},
        {"brindlex/", "-"},
        {"other/gadget.xml", "-"},
        {"brindlex/%zz", "-"},
    };
    for (const auto& [path, text] : table) {
        EXPECT_TRUE(read(path) == text) << path;
        EXPECT_EQ(files.fileExists(toText("resource://" + std::string(path))), text != "-") << path;
    }
    for (const std::string path : {"brindlex/skin/forms", "brindlex/skin/", "brindlex"}) {
        EXPECT_TRUE(files.folderExists(toText("resource://" + path))) << path;
    }
    EXPECT_FALSE(files.folderExists(toText("resource://brindlex/gadget.xml")));
    EXPECT_EQ(remove(), kOk);
    EXPECT_EQ(remove(), kFalse);
    EXPECT_EQ(read("brindlex/gadget.xml"), "-");
}

TEST_F(ResourcesTest, AStreamOutlivesItsArchive) {
    const auto archive = archiveOf({{"file", "0123456789"}});
    ASSERT_EQ(add(archive), kOk);
    EXPECT_EQ(read("brindlex/file"), "0123456789");
    remove();
    EXPECT_EQ(measure(*stream), 10);
    EXPECT_EQ(stream->seek(-4, SeekOrigin::kEnd, nullptr), kOk);
    EXPECT_EQ(readAll(*stream), "6789");
}

TEST_F(ResourcesTest, DamagedAndOversizedArchivesAreRefused) {
    auto damaged = archiveOf({{"file", "the contents of the file"}}, ZIP_CM_STORE);
    for (const auto& bytes :
         {std::string("this is no archive"), std::string(), damaged.substr(0, damaged.size() / 2)}) {
        EXPECT_EQ(add(bytes), kInvalidArgument);
    }
    damaged[damaged.find("contents")] = 'C'; // the check sum does not fit any more
    for (const auto& bytes : {damaged, archiveOf({{"file", std::string(65U << 20U, '\0')}})}) {
        ASSERT_EQ(add(bytes), kOk);
        EXPECT_EQ(read("brindlex/file"), "-");
        remove();
    }
}

} // namespace
} // namespace xbr::host::tests
