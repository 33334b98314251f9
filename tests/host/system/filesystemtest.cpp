#include "framework/abi/filestore.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "host/base/fileurl.h"
#include "tests/host/system/filesfixture.h"

#include <chrono>
#include <ctime>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <tuple>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

TEST(FileUrlTest, NamesPathsAsBytes) {
    const std::pair<const char*, const char*> paths[] = {
        {"file:///tmp/a%20b", "/tmp/a b"}, {"FILE://LocalHost/tmp/x", "/tmp/x"},
        {"file:/tmp/x", "/tmp/x"},         {"file:///caf%C3%A9/%E9", "/caf\xC3\xA9/\xE9"},
        {"file:///folder/", "/folder/"},   {"file:///100%25%2Fb", "/100%/b"},
    };
    for (const auto& [url, path] : paths) {
        EXPECT_EQ(localPath(url), path) << url;
    }
    for (const auto* url :
         {"file://server/share", "file:relative", "file://", "http://host/x", "/tmp/x", "file:///a%00b",
          "file:///a%", "file:///a%4", "file:///a%zz", "file:///a?b", "file:///a#b"}) {
        EXPECT_EQ(localPath(url), std::nullopt) << url;
    }
    EXPECT_EQ(fileUrl("/a b+Axé"), "file:///a%20b+Ax%C3%A9");
}

class FileSystemTest : public testing::Test {
protected:
    Result open(const std::string& name) {
        return files.openForReading(toText(folder.url(name)), stream.out());
    }
    Result create(const std::string& name) {
        return files.createFile(toText(folder.url(name)), stream.out());
    }
    Result copy(const std::string& from, const std::string& to) {
        return files.copyFile(toText(folder.url(from)), toText(folder.url(to)));
    }
    Result removeFolder(const std::string& name) { return files.removeFolder(toText(folder.url(name))); }
    Result replace(const std::string& name, const std::string& bytes) {
        return store->replaceFile(toText(folder.url(name)), bytes.data(), bytes.size());
    }
    /// The permissions of a file or folder in there.
    mode_t modeOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(at(name).c_str(), &status), 0) << name;
        return status.st_mode & 0777U;
    }
    fs::path at(const std::string& name) const { return folder.path() / name; }

    IFileSystem& files = *XBRGetFileSystem();
    Ref<IFileStore> store = query<IFileStore>(&files);
    TestFolder folder;
    Ref<IStream> stream;
    std::uint64_t done = 0;
};

TEST_F(FileSystemTest, LongWorkIsShownAndCanBeCancelled) {
    writeFile(at("song.wav"), std::string(5U << 20U, 's'));
    int problems = 0;
    setFileProblemListener([&](const Problem&) { ++problems; });
    const auto indicator = make<RecordingProgress>();
    setWorkProgress(indicator.get());
    Ref<IString> temporary;
    ASSERT_EQ(XBRGetSystem()->getTemporaryFolder(temporary.out()), kOk);
    const std::string prepared = take(temporary) + "/prepared.wav";
    EXPECT_EQ(files.copyFile(toText(folder.url("song.wav")), toText(prepared)), kOk);
    EXPECT_EQ(std::set(indicator->names.begin(), indicator->names.end()), std::set<std::string>{"song.wav"});
    ASSERT_EQ(files.openForReading(toText(prepared), stream.out()), kOk);
    EXPECT_EQ(readAll(*stream).size(), 5U << 20U);

    indicator->cancelled = true;
    EXPECT_EQ(copy("song.wav", "other"), kUnexpected);
    EXPECT_FALSE(fs::exists(at("other")));
    std::vector<char> piece(1U << 20U);
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // it looks some times a second
    ASSERT_EQ(stream->seek(0, SeekOrigin::kStart, nullptr), kOk);
    EXPECT_EQ(stream->read(piece.data(), piece.size(), &done), kUnexpected);
    EXPECT_EQ(problems, 0) << "the user knows";
    setFileProblemListener({});

    setWorkProgress(nullptr);
    EXPECT_EQ(copy("song.wav", "other"), kOk);
}

TEST_F(FileSystemTest, OpensRegularFilesOnly) {
    writeFile(at("plain"), "bytes");
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_EQ(open("plain"), kOk);
    EXPECT_EQ(readAll(*stream), "bytes");
    EXPECT_EQ(stream->write("x", 1, &done), kNotImplemented);
    EXPECT_EQ(stream->seek(-6, SeekOrigin::kCurrent, nullptr), kInvalidArgument);
    for (const auto* name : {"missing", "pipe", ""}) {
        EXPECT_EQ(open(name), kFalse) << name;
        EXPECT_FALSE(stream);
        EXPECT_FALSE(files.fileExists(toText(folder.url(name)))) << name;
    }
    EXPECT_EQ(create("pipe"), kUnexpected);
    EXPECT_EQ(copy("pipe", "copy"), kUnexpected);
    EXPECT_EQ(files.openForReading(toText("https://host/x"), stream.out()), kInvalidArgument);
    EXPECT_EQ(files.createFile(toText("resource://x/y"), stream.out()), kInvalidArgument);
}

TEST_F(FileSystemTest, CreatesFilesWithTheirFolders) {
    std::int64_t position = 0;
    EXPECT_EQ(create("new/deep/file"), kOk);
    EXPECT_EQ(stream->write("hello", 5, &done), kOk);
    EXPECT_EQ(stream->seek(-3, SeekOrigin::kEnd, &position), kOk);
    EXPECT_EQ(position, 2);
    EXPECT_EQ(stream->write("y", 1, &done), kOk);
    ASSERT_EQ(open("new/deep/file"), kOk);
    EXPECT_EQ(readAll(*stream), "heylo");
    EXPECT_EQ(create("new/deep/file"), kOk);
    EXPECT_EQ(readFile(at("new/deep/file")), "");
    EXPECT_EQ(create("new/deep"), kUnexpected);
    EXPECT_EQ(create("new/deep/file/below"), kUnexpected);
}

TEST_F(FileSystemTest, AFullDiskIsReportedAndLeavesNoPartialCopy) {
    const auto bytes = noise(100'000);
    writeFile(at("source"), bytes);
    writeFile(at("target"), "old");
    ASSERT_EQ(create("written"), kOk);
    const FileSizeLimit limit(50'000);
    EXPECT_EQ(stream->write(bytes.data(), bytes.size(), &done), kUnexpected);
    EXPECT_EQ(done, 50'000U);
    EXPECT_EQ(copy("source", "target"), kUnexpected);
    EXPECT_EQ(readFile(at("target")), "old");
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"source", "target", "written"}));
}

TEST_F(FileSystemTest, CopiesReplaceAndStayReadable) {
    const auto bytes = noise(3'000'000);
    writeFile(at("source"), bytes);
    fs::permissions(at("source"), fs::perms::owner_read);
    writeFile(at("target"), "old");
    for (const auto* target : {"new/folder/copy", "target", "source"}) {
        EXPECT_EQ(copy("source", target), kOk) << target;
        EXPECT_EQ(readFile(at(target)), bytes) << target;
        EXPECT_NE(fs::status(at(target)).permissions() & fs::perms::owner_write, fs::perms::none) << target;
    }
    fs::create_directory(at("folder"));
    EXPECT_EQ(copy("source", "folder"), kUnexpected);
    EXPECT_EQ(copy("folder", "other"), kUnexpected);
    EXPECT_EQ(copy("missing", "never/made"), kUnexpected);
    writeSparseFile(at("huge"), std::uint64_t{8} << 40U);
    EXPECT_EQ(copy("huge", "other"), kUnexpected) << "known before the rest of the disk is filled";
    fs::remove(at("huge"));
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"folder", "new", "source", "target"}));
}

TEST_F(FileSystemTest, RemovesOnlyWhatIsMeantAndDoesNotFollowLinks) {
    writeFile(at("precious/file"), "keep");
    fs::create_directories(at("payload/deep"));
    fs::create_directory_symlink(at("precious"), at("payload/deep/link"));
    fs::create_symlink(at("precious/file"), at("payload/file"));
    EXPECT_EQ(removeFolder("payload/"), kOk);
    for (const auto* name : {"planted", "planted/", "planted//"}) {
        fs::create_directory_symlink(at("precious"), at("planted"));
        EXPECT_EQ(removeFolder(name), kOk) << name;
    }
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"precious"});

    EXPECT_EQ(removeFolder("missing"), kFalse);
    EXPECT_EQ(removeFolder("precious/file"), kFalse);
    for (const auto* url : {"file:///", "file:////", "folder"}) {
        EXPECT_EQ(files.removeFolder(toText(url)), kInvalidArgument);
    }
    EXPECT_TRUE(files.folderExists(toText(folder.url("precious"))));
    EXPECT_EQ(readFile(at("precious/file")), "keep");
    const std::pair<const char*, Result> removals[] = {
        {"precious", kFalse}, {"missing", kFalse}, {"precious/file", kOk}, {"precious/file", kFalse}};
    for (const auto& [name, result] : removals) {
        EXPECT_EQ(files.removeFile(toText(folder.url(name))), result) << name;
    }
}

TEST_F(FileSystemTest, MakesTheCacheFolderForTheUserAlone) {
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

TEST_F(FileSystemTest, ReplacesFilesAsAWhole) {
    const std::string bytes("se\0cond", 7);
    EXPECT_EQ(replace("new/deep/file", "first, and longer"), kOk);
    EXPECT_EQ(replace("new/deep/file", bytes), kOk);
    EXPECT_EQ(modeOf("new/deep/file"), 0600U);
    EXPECT_EQ(readFile(at("new/deep/file")), bytes);
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(replace("new/deep/file", std::string(5000, 'x')), kUnexpected);
    }
    EXPECT_EQ(readFile(at("new/deep/file")), bytes) << "as it was";
    EXPECT_EQ(namesIn(folder.path("new/deep")), std::vector<std::string>{"file"});
    EXPECT_EQ(replace("new", "x"), kUnexpected) << "a folder";
    EXPECT_EQ(replace("new/", "x"), kInvalidArgument);
    EXPECT_EQ(store->replaceFile(toText("https://x.example/file"), "x", 1), kInvalidArgument);
}

TEST_F(FileSystemTest, ListsFilesWithSizeAndTime) {
    folder.write("a b", "123");
    folder.write(".hidden", "");
    folder.write("inner/deeper", "x");
    fs::create_symlink(at("a b"), at("link"));
    Ref<IFileList> found;
    ASSERT_EQ(store->getFiles(toText(folder.url("")), found.out()), kOk);
    std::set<std::string> texts;
    for (std::int32_t i = 0; i < found->count(); ++i) {
        texts.insert(toString(found->urlAt(i)) + " " + std::to_string(found->sizeAt(i)));
        EXPECT_NEAR(static_cast<double>(found->modifiedAt(i)), static_cast<double>(std::time(nullptr)), 60);
    }
    EXPECT_EQ(texts, (std::set<std::string>{folder.url(".hidden") + " 0", folder.url("a b") + " 3"}));
    EXPECT_EQ(store->getFiles(toText(folder.url("missing")), found.out()), kFalse);
}

} // namespace
} // namespace xbr::host::tests
