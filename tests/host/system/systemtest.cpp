#include "framework/abi/system.h"

#include "host/base/fileurl.h"
#include "tests/host/system/filesfixture.h"

#include <cstdlib>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

std::string temporaryFolder() {
    Ref<IString> url;
    EXPECT_EQ(XBRGetSystem()->getTemporaryFolder(url.out()), kOk);
    return localPath(view(url->text())).value_or("no file URL");
}

/// Runs `work` in a child made by fork() that ends through exit(), and waits for it.
void runInChild(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        std::exit(0); // NOLINT(concurrency-mt-unsafe)
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
}

TEST(SystemTest, APlaceForTemporaryFilesThatIsNotThereIsNamed) {
    removeTemporaryFolder();
    const TestVariable place("TMPDIR", "/nowhere/at all");
    Ref<IString> url;
    Problem told;
    setFileProblemListener([&](const Problem& problem) { told = problem; });
    EXPECT_EQ(XBRGetSystem()->getTemporaryFolder(url.out()), kUnexpected);
    setFileProblemListener({});
    EXPECT_EQ(told.fault, Fault::kNoTemporaryFolder);
    EXPECT_EQ(told.subject + ": " + told.words, "/nowhere/at all: No such file or directory");
}

/// Whoever is ended in the middle leaves a folder that the next host knows for one of a dead host.
TEST(SystemTest, TheMarkOfATemporaryFolderGoesLast) {
    const TestFolder folder;
    for (const auto* name : {"a file", "folder/song.wav", "xbrhost.lock", "xbrhost.lock.new", "z"}) {
        writeFile(folder.path() / "own" / name, "x");
    }
    const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    inotify_add_watch(watch, folder.path("own").c_str(), IN_DELETE);
    removeMarkedFolder(folder.path("own"));
    EXPECT_FALSE(fs::exists(folder.path("own")));
    std::string events(4096, '\0'); // which name what went
    EXPECT_GT(read(watch, events.data(), events.size()), 0);
    close(watch);
    for (const auto* name : {"a file", "folder", "xbrhost.lock.new", "z"}) {
        EXPECT_LT(events.find(name + std::string(1, '\0')), events.find(std::string("xbrhost.lock\0", 13)))
            << name;
    }
}

TEST(SystemTest, TheTemporaryFolderIsPrivateAndGoesWithItsProcess) {
    const std::string path = temporaryFolder();
    struct stat status {};
    ASSERT_EQ(lstat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
    EXPECT_EQ(status.st_uid, getuid());
    EXPECT_EQ(temporaryFolder(), path);

    const std::string file = path + "/Brindlex/payload/file";
    writeFile(file, "x");
    runInChild([] {}); // a child of this process must not take the folder with it
    EXPECT_TRUE(fs::exists(file));
    removeTemporaryFolder();
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::is_directory(temporaryFolder())) << "another one";
    removeTemporaryFolder();

    const TestFolder base;
    runInChild([&] {
        const TestVariable place("TMPDIR", base.path().string());
        writeFile(fs::path(temporaryFolder()) / "file", "x");
        writeFile(base.path() / "was-here", std::to_string(namesIn(base.path()).size()));
    });
    EXPECT_EQ(namesIn(base.path()), std::vector<std::string>{"was-here"});
    EXPECT_EQ(readFile(base.path() / "was-here"), "1");
}

TEST(SystemShellTest, OpensWebUrlsOnlyAndWithoutAShell) {
    const TestFolder folder;
    folder.write("xdg-open", "#!/bin/sh\necho noise; echo noise >&2\nprintf %s \"$1\" > \"${0%/*}/part\"\n"
                             "mv \"${0%/*}/part\" \"${0%/*}/opened\"\n");
    fs::permissions(folder.path("xdg-open"), fs::perms::owner_all);
    const TestVariable path("PATH", folder.path().string() + ":" + qgetenv("PATH").toStdString());
    int announced = 0;
    setBrowserAnnouncer([&](std::string_view) { return ++announced > 0; });
    const auto open = [](std::string_view url) { return XBRGetSystemShell()->openUrl(toText(url)); };
    for (const auto* url :
         {"", "file:///etc/passwd", "javascript:alert(1)", "ftp://host/", "https:", "http:///x", "--help",
          "https://a b/", "https://host/%zz", "brindlex://callback", "host.example"}) {
        EXPECT_EQ(open(url), kInvalidArgument) << url;
    }
    EXPECT_EQ(announced, 0);

    const std::string url = "https://example.com/a?x=$(touch%20y)&state=%2B%20;ls#frag";
    testing::internal::CaptureStdout();
    EXPECT_EQ(open(url), kOk);
    EXPECT_TRUE(runUntil([&] { return fs::exists(folder.path("opened")); }));
    EXPECT_EQ(readFile(folder.path("opened")), url);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(announced, 1);
    const TestVariable nowhere("PATH", "/nowhere");
    EXPECT_EQ(open(url), kOk) << "the announcer took it";
    setBrowserAnnouncer({});
    EXPECT_EQ(open(url), kUnexpected);
}

} // namespace
} // namespace xbr::host::tests
