#include "host/system/package/packagepipeline.h"
#include "tests/host/system/filesfixture.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

/// How programs extract the archive that is beside their folder; the name of one entry may follow.
constexpr const char* kReaders[] = {
    "unzip -q ../payload.zip", "7z x -bd ../payload.zip >/dev/null", "bsdtar -xf ../payload.zip",
    R"(python3 -c 'import sys, zipfile as z; z.ZipFile("../payload.zip").extractall(None, sys.argv[1:] or None)')"};

/// Runs a command in an empty folder beside the payload.
void expectSuccess(const TestFolder& folder, const std::string& command) {
    const auto whole = "export LC_ALL=C.UTF-8; mkdir " + folder.path("out") + " && cd " + folder.path("out") +
                       " && " + command + " && rm -r " + folder.path("out");
    EXPECT_EQ(std::system(whole.c_str()), 0) << command; // NOLINT(cert-env33-c,concurrency-mt-unsafe)
}

/// Text of that size, which deflates.
std::string words(std::size_t size) {
    std::string text;
    while (text.size() < size) {
        text += "all work and no play makes a dull boy, " + std::to_string(text.size());
    }
    return text.substr(0, size);
}

/// Entries are cut into pieces; nothing may get lost where they meet.
TEST_F(PackageTest, EveryReaderFindsTheFoldersContentsInAFixedOrder) {
    constexpr auto kPiece = PackagePipeline::kPieceSize;
    std::vector<std::size_t> sizes = {0,      1,          2,          65'535,         65'536,    kPiece - 1,
                                      kPiece, kPiece + 1, 2 * kPiece, 5 * kPiece - 1, 5 * kPiece};
    for (std::size_t i = 0; i < 300; ++i) {
        sizes.push_back(100 * i); // more files than the pipeline holds pieces
    }
    std::vector<std::pair<std::string, std::string>> files = {{"metadata.json", "one song, one song"},
                                                              {"z last file", ""}};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        files.emplace_back("assets/" + std::to_string(1000 + i), words(sizes[i]));
    }
    files.insert(files.end(), {{"assets/2 Axé – 夜.FLAC", noise(1'000'000)},
                               {"assets/“quoted” & 'ticked'.wav", "x"},
                               {"assets/deep/3.mp3", std::string(60'000, '\0') + noise(3'000'000)}});
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        writeFile(payload / file->first, file->second);
    }
    for (const bool isCompressed : {true, false}) {
        start(isCompressed);
        EXPECT_EQ(add(), kOk);
        EXPECT_FALSE(fs::exists(archive));
        EXPECT_EQ(flush(), kOk);
        EXPECT_EQ(package->close(), kOk);
        EXPECT_EQ(progress->lastFraction, 1.0);
        EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"payload", "payload.zip"}));
        for (const std::string reader : kReaders) {
            expectSuccess(folder, reader + " && diff -r . ../payload");
        }
        expectSuccess(folder, R"(python3 -c '
import zipfile
for entry in zipfile.ZipFile("../payload.zip").infolist(): print(entry.compress_type, entry.filename)' > ../list)");
        std::string expected;
        for (const auto& [name, bytes] : files) {
            expected += (isCompressed ? "8 " : "0 ") + name + "\n";
        }
        EXPECT_EQ(readFile(folder.path("list")), expected);
        fs::remove(folder.path("list"));
    }
}

/// Sizes, and places of entries, that take more than 32 bits.
TEST_F(PackageTest, LargeEntriesBeyondFourGigabytes) {
    writeSparseFile(payload / "a large.wav", (std::uint64_t{4} << 30U) + 5);
    writeFile(payload / "z behind it", "still found");
    EXPECT_EQ(add(), kOk);
    EXPECT_EQ(flush(), kOk);
    for (const std::string reader : kReaders) {
        expectSuccess(folder, reader + " 'z behind it' && diff 'z behind it' ../payload");
    }
    expectSuccess(folder, "7z t -bd ../payload.zip >/dev/null"); // the quickest at 4 GiB
}

TEST_F(PackageTest, ReportsWhatItPacksWhileItPacks) {
    writeFile(payload / "1.wav", "short");
    writeSparseFile(payload / "2.wav", std::uint64_t{512} << 20U);
    EXPECT_EQ(add(), kOk);
    std::string inTheMiddle;
    progress->thenFrom = 0.01;
    progress->then = [&] {
        inTheMiddle = progress->names.back();
        EXPECT_LT(progress->lastFraction, 1.0);
        EXPECT_EQ(flush(), kUnexpected);
        EXPECT_EQ(add(), kUnexpected);
        EXPECT_EQ(package->close(), kUnexpected);
    };
    progress->names.clear();
    EXPECT_EQ(flush(), kOk);
    EXPECT_EQ(inTheMiddle, "2.wav");
    EXPECT_EQ(progress->names.front(), "1.wav");
}

TEST_F(PackageTest, TheLastReferenceMayGoInAReport) {
    writeFile(payload / "song.wav", noise(500'000));
    EXPECT_EQ(add(), kOk);
    IPackage* const borrowed = package.get();
    progress->then = [&] { package.reset(); };
    EXPECT_EQ(borrowed->flush(progress.get()), kOk);
    EXPECT_TRUE(fs::exists(archive));
}

TEST_F(PackageTest, WhatCannotBePackedIsRefused) {
    writeFile(payload / "assets/song.wav", "x");
    EXPECT_EQ(package->addFolder(toText(folder.url("payload")), 1, nullptr), kInvalidArgument);
    EXPECT_EQ(package->setOption(toText("compressed"), 0), kUnexpected) << "too late";
    fs::create_symlink("/etc/passwd", payload / "assets/link");
    EXPECT_EQ(add(), kUnexpected);
    fs::remove(payload / "assets/link");
    EXPECT_EQ(add(), kUnexpected) << "something was refused";
    EXPECT_EQ(flush(), kUnexpected);
    start();
    EXPECT_EQ(package->addFolder(toText(folder.url("missing")), kRecursiveRelative, nullptr), kUnexpected);

    auto& handler = *XBRGetPackageHandler();
    for (const auto* place : {"payload", "missing/x.zip"}) {
        ASSERT_EQ(handler.createPackage(kZipPackage, toText(folder.url(place)), package.out()), kOk);
        EXPECT_EQ(package->create(), kUnexpected) << place;
        EXPECT_EQ(add(), kUnexpected) << place;
        EXPECT_EQ(flush(), kUnexpected) << place;
    }
    EXPECT_EQ(handler.createPackage(kZipPackage, toText("https://host/x"), package.out()), kInvalidArgument);
    EXPECT_FALSE(package);
    expectNothingLeft();
}

using Act = std::function<void()>;

/// Sparse, so that it takes no room; and long enough for a report or two while it is packed.
constexpr std::uint64_t kLongSize = std::uint64_t{1} << 30U;

/// A source that changes while it is packed must never become an entry that looks right.
TEST_F(PackageTest, ASourceThatChangesIsAnError) {
    const auto song = payload / "song.wav";
    const auto other = payload / "other";
    const std::vector<std::pair<const char*, Act>> changes = {
        {"shortened", [&] { fs::resize_file(song, kLongSize - 1); }},
        {"grown", [&] { std::ofstream(song, std::ios::app) << "more"; }},
        {"written to", [&] { std::fstream(song, std::ios::in | std::ios::out) << "other"; }},
        {"removed", [&] { fs::remove(song); }},
        {"replaced by its like",
         [&] {
             writeSparseFile(other, kLongSize);
             fs::last_write_time(other, fs::last_write_time(song));
             fs::rename(other, song);
         }},
        {"replaced by a link",
         [&] {
             fs::rename(song, other);
             fs::create_symlink(other, song);
         }},
    };
    for (const auto& [what, change] : changes) {
        for (const double from : {-1.0, 0.0, 0.001}) { // before, at the start, in the middle
            SCOPED_TRACE(what + std::to_string(from));
            fs::remove(song);
            fs::remove(other);
            writeSparseFile(song, kLongSize);
            start();
            EXPECT_EQ(add(), kOk);
            progress->thenFrom = from;
            from < 0 ? change() : static_cast<void>(progress->then = change);
            EXPECT_EQ(flush(), kUnexpected);
            EXPECT_FALSE(progress->then) << "the change was not made";
            EXPECT_EQ(problems, (std::vector{Problem{Fault::kChanged, "song.wav", 0, {}, {}, {}}}));
            expectNothingLeft();
        }
    }
}

TEST_F(PackageTest, CancellingLeavesNoArchiveNorAnOldOne) {
    writeSparseFile(payload / "song.wav", kLongSize);
    writeFile(archive, "old");
    for (const double from : {0.0, 0.001, 0.3}) {
        start();
        EXPECT_EQ(add(), kOk);
        progress->thenFrom = from;
        progress->then = [&] { progress->cancelled = true; };
        EXPECT_EQ(flush(), kFalse) << from;
        EXPECT_LT(progress->lastFraction, 1.0);
        expectNothingLeft();
    }
}

/// Modules go on when a copy fails; what they meant to pack must not go out without it.
TEST_F(PackageTest, AFolderWithoutWhatWasMeantForItIsNotPacked) {
    auto& files = *XBRGetFileSystem();
    const auto source = folder.path() / "song.wav";
    const auto copy = [&] {
        return files.copyFile(toText(folder.url("song.wav")), toText(folder.url("payload/assets/song.wav")));
    };
    const auto write = [&] {
        Ref<IStream> stream;
        std::uint64_t done = 0;
        files.createFile(toText(folder.url("payload/metadata.json")), stream.out());
        return stream->write("{}{}{}{}{}", 10, &done);
    };
    const auto expectAdd = [&](Result result) {
        start();
        EXPECT_EQ(add(), result);
        EXPECT_EQ(flush(), result);
        EXPECT_EQ(fs::exists(archive), result == kOk);
    };
    const std::pair<bool, std::function<Result()>> faults[] = {{true, copy}, {false, copy}, {false, write}};
    for (const auto& [isSourceGone, call] : faults) {
        const auto fail = [&source, &call = call, isSourceGone = isSourceGone] {
            const FileSizeLimit full(5);
            if (isSourceGone) {
                fs::remove(source);
            }
            EXPECT_EQ(call(), kUnexpected);
        };
        for (const bool isOldOneThere : {false, true}) {
            SCOPED_TRACE(testing::Message() << isSourceGone << isOldOneThere);
            fs::remove_all(payload);
            writeFile(payload / "other.wav", "x");
            writeFile(source, "new song");
            if (isOldOneThere) {
                writeFile(payload / "assets/song.wav", "old song");
            }
            fail();
            expectAdd(kUnexpected);
            writeFile(source, "new song");
            EXPECT_EQ(copy(), kOk);
            EXPECT_EQ(write(), kOk);
            expectAdd(kOk); // all that was missing is there now
            files.removeFolder(toText(folder.url("payload")));
            fail();
            files.removeFolder(toText(folder.url("payload")));
            writeFile(payload / "other.wav", "x");
            expectAdd(kOk); // the folder is a new one
        }
    }
}

TEST_F(PackageTest, AFullDiskLeavesNoPartialArchive) {
    writeFile(payload / "1.mp3", noise(2'000'000));
    writeFile(payload / "2.mp3", noise(500'000));
    // The last one hits the directory at the end.
    for (const std::uint64_t limit : {0U, 50U, 100'000U, 1'500'000U, 2'000'100U, 2'500'400U}) {
        start();
        EXPECT_EQ(add(), kOk);
        const FileSizeLimit full(limit);
        EXPECT_EQ(flush(), kUnexpected) << limit;
        EXPECT_EQ(problems,
                  (std::vector{Problem{Fault::kNotWritable, archive, EFBIG, "File too large", {}, {}}}));
        expectNothingLeft();
    }
}

} // namespace
} // namespace xbr::host::tests
