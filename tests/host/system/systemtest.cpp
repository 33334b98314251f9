#include "framework/abi/system.h"

#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/system/hostsystem.h"
#include "tests/host/system/testfiles.h"

#include <QElapsedTimer>
#include <QThread>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
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
template <class Work>
void runInChild(Work work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        std::exit(0); // NOLINT(concurrency-mt-unsafe)
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
}

TEST(SystemTest, TellsTheTime) {
    EXPECT_NEAR(static_cast<double>(XBRGetSystem()->currentTime()), static_cast<double>(std::time(nullptr)),
                2);
}

TEST(SystemTest, APlaceForTemporaryFilesThatIsNotThereIsNamed) {
    removeTemporaryFolder();
    qputenv("TMPDIR", "/nowhere/at all");
    Ref<IString> url;
    std::vector<Problem> problems;
    setFileProblemListener([&](const Problem& problem) { problems.push_back(problem); });
    EXPECT_EQ(XBRGetSystem()->getTemporaryFolder(url.out()), kUnexpected);
    EXPECT_FALSE(url);
    setFileProblemListener({});
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].fault, Fault::kNoTemporaryFolder);
    EXPECT_EQ(problems[0].subject + ": " + problems[0].words, "/nowhere/at all: No such file or directory");
    qunsetenv("TMPDIR");
}

/// Whoever is ended in the middle leaves a folder that the next host knows for one of a dead host.
TEST(SystemTest, TheMarkOfATemporaryFolderGoesLast) {
    const TestFolder folder;
    for (const auto* name : {"a file", "folder/song.wav", "xbrhost.lock", "xbrhost.lock.new", "z"}) {
        writeFile(folder.path() / "own" / name, "x");
    }
    const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    inotify_add_watch(watch, (folder.path() / "own").c_str(), IN_DELETE);
    removeMarkedFolder((folder.path() / "own").string());
    EXPECT_FALSE(fs::exists(folder.path() / "own"));
    alignas(inotify_event) char bytes[4096];
    std::vector<std::string> removed;
    const auto size = read(watch, bytes, sizeof bytes);
    for (ssize_t at = 0; at < size;) {
        const auto* event = reinterpret_cast<const inotify_event*>(bytes + at);
        if (event->len > 0) {
            removed.emplace_back(event->name);
        }
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    close(watch);
    ASSERT_EQ(removed.size(), 5U);
    EXPECT_EQ(removed.back(), "xbrhost.lock");
}

TEST(SystemTest, TheTemporaryFolderIsPrivateAndGoesWithItsProcess) {
    const std::string path = temporaryFolder();
    struct stat status {};
    ASSERT_EQ(lstat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U);
    EXPECT_EQ(status.st_uid, getuid());
    EXPECT_EQ(temporaryFolder(), path);

    writeFile(fs::path(path) / "Brindlex/payload/file", "x");
    runInChild([] {}); // a child of this process must not take the folder with it
    EXPECT_TRUE(fs::exists(fs::path(path) / "Brindlex/payload/file"));

    removeTemporaryFolder();
    EXPECT_FALSE(fs::exists(path));
    const std::string next = temporaryFolder();
    EXPECT_TRUE(fs::is_directory(next));
    removeTemporaryFolder();

    const TestFolder base;
    runInChild([&] {
        setenv("TMPDIR", base.path().c_str(), 1); // NOLINT(concurrency-mt-unsafe)
        writeFile(fs::path(temporaryFolder()) / "file", "x");
        if (namesIn(base.path()).size() == 1) {
            writeFile(base.path() / "was-here", "");
        }
    });
    EXPECT_EQ(namesIn(base.path()), std::vector<std::string>{"was-here"});
}

/// Puts a program named xdg-open first on the path, which notes its argument in a file.
class SystemShellTest : public testing::Test {
protected:
    SystemShellTest() {
        writeFile(folder.path() / "xdg-open",
                  "#!/bin/sh\necho noise; echo noise >&2\nprintf %s \"$1\" > \"$(dirname \"$0\")/part\"\n"
                  "mv \"$(dirname \"$0\")/part\" \"$(dirname \"$0\")/opened\"\n");
        fs::permissions(folder.path() / "xdg-open", fs::perms::owner_all);
        setPath(folder.path().string() + ":" + pathBefore);
    }
    ~SystemShellTest() override {
        setBrowserAnnouncer({});
        setPath(pathBefore);
    }

    static void setPath(const std::string& path) {
        setenv("PATH", path.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
    }
    static Result open(std::string_view url) { return XBRGetSystemShell()->openUrl(toText(url)); }
    std::string opened() {
        QElapsedTimer clock;
        clock.start();
        while (!fs::exists(folder.path() / "opened") && clock.elapsed() < 5000) {
            QThread::msleep(5);
        }
        return readFile(folder.path() / "opened");
    }

    TestFolder folder;
    std::string pathBefore = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe)
};

TEST_F(SystemShellTest, OpensWebUrlsOnlyAndWithoutAShell) {
    int announced = 0;
    setBrowserAnnouncer([&](std::string_view) { return ++announced > 0; });
    for (const auto* url :
         {"", "file:///etc/passwd", "javascript:alert(1)", "ftp://host/", "https:", "http:///x", "--help",
          "https://a b/", "https://host/%zz", "brindlex://callback", "host.example"}) {
        EXPECT_EQ(open(url), kInvalidArgument) << url;
    }
    EXPECT_EQ(announced, 0);

    const std::string url = "https://example.com/a?x=$(touch%20y)&state=%2B%20;ls#frag";
    testing::internal::CaptureStdout();
    EXPECT_EQ(open(url), kOk);
    EXPECT_EQ(opened(), url);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(announced, 1);
}

TEST_F(SystemShellTest, WithoutABrowserTheAnnouncerDecides) {
    setPath("/nowhere");
    EXPECT_EQ(open("https://example.com/"), kUnexpected);
    std::string announced;
    bool isReachable = false;
    setBrowserAnnouncer([&](std::string_view url) {
        announced = url;
        return isReachable;
    });
    EXPECT_EQ(open("https://example.com/"), kUnexpected);
    EXPECT_EQ(announced, "https://example.com/");
    isReachable = true;
    EXPECT_EQ(open("https://example.com/"), kOk);
}

} // namespace
} // namespace xbr::host::tests
