#include "tests/host/system/filesfixture.h"

#include <cerrno>
#include <fstream>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

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
    start();
    progress->cancelled = true;
    EXPECT_EQ(add(), kFalse);
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
    const Act faults[] = {[&] {
                              fs::remove(source);
                              EXPECT_EQ(copy(), kUnexpected);
                          },
                          [&] {
                              const FileSizeLimit full(5);
                              EXPECT_EQ(copy(), kUnexpected);
                          },
                          [&] {
                              const FileSizeLimit full(5);
                              EXPECT_EQ(write(), kUnexpected);
                          }};
    for (const auto& fault : faults) {
        for (const bool isOldOneThere : {false, true}) {
            SCOPED_TRACE(&fault - faults);
            fs::remove_all(payload);
            writeFile(payload / "other.wav", "x");
            writeFile(source, "new song");
            if (isOldOneThere) {
                writeFile(payload / "assets/song.wav", "old song");
            }
            fault();
            expectAdd(kUnexpected);
            writeFile(source, "new song");
            EXPECT_EQ(copy(), kOk);
            EXPECT_EQ(write(), kOk);
            expectAdd(kOk); // all that was missing is there now
            files.removeFolder(toText(folder.url("payload")));
            fault();
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
