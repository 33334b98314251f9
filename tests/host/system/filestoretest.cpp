#include "framework/abi/filestore.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/ref.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "tests/host/system/testfiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

Ref<IFileStore> store() {
    return query<IFileStore>(XBRGetFileSystem());
}

Result replace(const std::string& url, const std::string& bytes) {
    return store()->replaceFile(toText(url), bytes.data(), bytes.size());
}

mode_t modeOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 0777U;
}

TEST(FileStoreTest, MakesTheCacheFolderForTheUserAlone) {
    const TestFolder folder;
    const auto cacheFolder = [](const std::string& base, const std::string& home) {
        setenv("XDG_CACHE_HOME", base.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
        setenv("HOME", home.c_str(), 1);           // NOLINT(concurrency-mt-unsafe)
        Ref<IString> url;
        return store()->getCacheFolder(url.out()) == kOk ? take(url) : "(none)";
    };
    const std::string base = folder.path().string();
    writeFile(folder.path() / "file", "in the way");
    EXPECT_EQ(cacheFolder(base + "/a b/c", base), folder.url("a b/c/xbrhost"));
    EXPECT_EQ(modeOf(folder.path() / "a b/c/xbrhost"), 0700U);
    EXPECT_EQ(cacheFolder(base + "/a b/c", base), folder.url("a b/c/xbrhost")) << "there already";
    EXPECT_EQ(cacheFolder("", base), folder.url(".cache/xbrhost"));
    EXPECT_EQ(cacheFolder("relative", base), folder.url(".cache/xbrhost"));
    EXPECT_EQ(cacheFolder("", ""), "(none)");
    EXPECT_EQ(cacheFolder(base + "/file", base), "(none)");
}

TEST(FileStoreTest, ReplacesFilesAsAWhole) {
    const TestFolder folder;
    const std::string url = folder.url("new/deep/file");
    EXPECT_EQ(replace(url, "first, and longer"), kOk);
    EXPECT_EQ(replace(url, std::string("se\0cond", 7)), kOk);
    EXPECT_EQ(readFile(folder.path() / "new/deep/file"), std::string("se\0cond", 7));
    EXPECT_EQ(modeOf(folder.path() / "new/deep/file"), 0600U);
    EXPECT_EQ(namesIn(folder.path() / "new/deep"), std::vector<std::string>{"file"});
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(replace(url, std::string(5000, 'x')), kUnexpected);
    }
    EXPECT_EQ(readFile(folder.path() / "new/deep/file"), std::string("se\0cond", 7)) << "as it was";
    EXPECT_EQ(namesIn(folder.path() / "new/deep"), std::vector<std::string>{"file"});
    EXPECT_EQ(replace(folder.url("new"), "x"), kUnexpected) << "a folder";
    EXPECT_EQ(replace(folder.url("new/"), "x"), kInvalidArgument);
    EXPECT_EQ(replace("https://x.example/file", "x"), kInvalidArgument);
}

TEST(FileStoreTest, ListsFilesWithSizeAndTime) {
    const TestFolder folder;
    writeFile(folder.path() / "a b", "123");
    writeFile(folder.path() / ".hidden", "");
    fs::create_directories(folder.path() / "inner");
    writeFile(folder.path() / "inner/deeper", "x");
    fs::create_symlink(folder.path() / "a b", folder.path() / "link");
    Ref<IFileList> files;
    ASSERT_EQ(store()->getFiles(toText(folder.url("")), files.out()), kOk);
    std::vector<std::string> found;
    for (std::int32_t i = 0; i < files->count(); ++i) {
        found.push_back(toString(files->urlAt(i)) + " " + std::to_string(files->sizeAt(i)));
        EXPECT_NEAR(static_cast<double>(files->modifiedAt(i)), static_cast<double>(std::time(nullptr)), 60);
    }
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, (std::vector<std::string>{folder.url(".hidden") + " 0", folder.url("a b") + " 3"}));
    EXPECT_EQ(view(files->urlAt(2)), "");
    EXPECT_EQ(files->sizeAt(-1), 0U);
    EXPECT_EQ(store()->getFiles(toText(folder.url("missing")), files.out()), kFalse);
    EXPECT_FALSE(files);
}

/// Writers and a reader that never sees half of what one of them wrote.
TEST(FileStoreTest, ServesTwoProcessesAtOnce) {
    const TestFolder folder;
    const std::string url = folder.url("shared");
    constexpr std::size_t kSize = 300'000;
    constexpr int kTimes = 200;
    const auto writeAll = [&](char letter) {
        for (int i = 0; i < kTimes; ++i) {
            replace(url, std::string(kSize, letter));
        }
    };
    replace(url, std::string(kSize, 'a'));
    const pid_t child = fork();
    if (child == 0) {
        writeAll('b');
        _exit(0);
    }
    int status = -1;
    for (int i = 0; waitpid(child, &status, WNOHANG) == 0; ++i) {
        if (i % 2 == 0) {
            replace(url, std::string(kSize, 'a'));
        }
        const std::string seen = readFile(folder.path() / "shared");
        ASSERT_EQ(seen.size(), kSize);
        ASSERT_EQ(seen.find_first_not_of(seen.front()), std::string::npos);
    }
    EXPECT_EQ(status, 0);
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"shared"});
}

} // namespace
} // namespace xbr::host::tests
