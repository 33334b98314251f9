#include "framework/abi/filestore.h"

#include "tests/host/system/filesfixture.h"

#include <ctime>
#include <set>
#include <sys/stat.h>
#include <tuple>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

class FileStoreTest : public testing::Test {
protected:
    Result replace(const std::string& name, const std::string& bytes) {
        return store->replaceFile(toText(folder.url(name)), bytes.data(), bytes.size());
    }
    /// The permissions of a file or folder in there.
    mode_t modeOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(folder.path(name).c_str(), &status), 0) << name;
        return status.st_mode & 0777U;
    }

    Ref<IFileStore> store = query<IFileStore>(XBRGetFileSystem());
    TestFolder folder;
};

TEST_F(FileStoreTest, MakesTheCacheFolderForTheUserAlone) {
    const std::string base = folder.path().string();
    folder.write("file", "in the way");
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {base + "/a b/c", base, folder.url("a b/c/xbrhost")},
        {base + "/a b/c", base, folder.url("a b/c/xbrhost")},
        {"", base, folder.url(".cache/xbrhost")},
        {"relative", base, folder.url(".cache/xbrhost")},
        {"", "", "(none)"},
        {base + "/file", base, "(none)"},
    };
    for (const auto& [cache, home, expected] : cases) {
        const TestVariable variables[] = {{"XDG_CACHE_HOME", cache}, {"HOME", home}};
        Ref<IString> url;
        EXPECT_EQ(store->getCacheFolder(url.out()) == kOk ? take(url) : "(none)", expected) << cache;
    }
    EXPECT_EQ(modeOf("a b/c/xbrhost"), 0700U);
}

TEST_F(FileStoreTest, ReplacesFilesAsAWhole) {
    const std::string bytes("se\0cond", 7);
    EXPECT_EQ(replace("new/deep/file", "first, and longer"), kOk);
    EXPECT_EQ(replace("new/deep/file", bytes), kOk);
    EXPECT_EQ(modeOf("new/deep/file"), 0600U);
    EXPECT_EQ(readFile(folder.path("new/deep/file")), bytes);
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(replace("new/deep/file", std::string(5000, 'x')), kUnexpected);
    }
    EXPECT_EQ(readFile(folder.path("new/deep/file")), bytes) << "as it was";
    EXPECT_EQ(namesIn(folder.path("new/deep")), std::vector<std::string>{"file"});
    EXPECT_EQ(replace("new", "x"), kUnexpected) << "a folder";
    EXPECT_EQ(replace("new/", "x"), kInvalidArgument);
    EXPECT_EQ(store->replaceFile(toText("https://x.example/file"), "x", 1), kInvalidArgument);
}

TEST_F(FileStoreTest, ListsFilesWithSizeAndTime) {
    folder.write("a b", "123");
    folder.write(".hidden", "");
    folder.write("inner/deeper", "x");
    fs::create_symlink(folder.path("a b"), folder.path("link"));
    Ref<IFileList> files;
    ASSERT_EQ(store->getFiles(toText(folder.url("")), files.out()), kOk);
    std::set<std::string> found;
    for (std::int32_t i = 0; i < files->count(); ++i) {
        found.insert(toString(files->urlAt(i)) + " " + std::to_string(files->sizeAt(i)));
        EXPECT_NEAR(static_cast<double>(files->modifiedAt(i)), static_cast<double>(std::time(nullptr)), 60);
    }
    EXPECT_EQ(found, (std::set<std::string>{folder.url(".hidden") + " 0", folder.url("a b") + " 3"}));
    EXPECT_EQ(view(files->urlAt(2)), "");
    EXPECT_EQ(files->sizeAt(-1), 0U);
    EXPECT_EQ(store->getFiles(toText(folder.url("missing")), files.out()), kFalse);
    EXPECT_FALSE(files);
}

} // namespace
} // namespace xbr::host::tests
