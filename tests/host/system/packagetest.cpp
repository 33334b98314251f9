#include "framework/abi/package.h"

#include "framework/support/text.h"
#include "host/system/hostfileurl.h"
#include "tests/host/system/testfiles.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <fstream>
#include <functional>
#include <map>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

class Progress final : public Object<IProgress> {
public:
    void update(double fraction, Text what) noexcept override {
        EXPECT_GE(fraction, lastFraction);
        lastFraction = fraction;
        names.push_back(toString(what));
        if (then) {
            std::exchange(then, nullptr)();
        }
    }
    bool isCancelled() noexcept override { return cancelled; }

    double lastFraction = 0.0;
    std::vector<std::string> names;
    bool cancelled = false;
    std::function<void()> then; ///< runs once, during the next report
};

struct Packed {
    std::string bytes;
    int method;
};

/// The entries of an archive, checked against their check sums.
std::vector<std::pair<std::string, Packed>> entriesOf(const fs::path& path) {
    std::vector<std::pair<std::string, Packed>> entries;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    for (zip_int64_t i = 0; archive && i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t status;
        zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &status);
        zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        std::string bytes(status.size + 1, '\0');
        bytes.resize(
            static_cast<std::size_t>(std::max(zip_fread(file, bytes.data(), bytes.size()), zip_int64_t{0})));
        zip_fclose(file);
        entries.emplace_back(status.name, Packed{std::move(bytes), status.comp_method});
    }
    zip_discard(archive);
    return entries;
}

class PackageTest : public testing::Test {
protected:
    PackageTest() {
        fs::create_directories(payload);
        start();
    }

    /// A new package at the archive's place, and a new progress.
    void start() {
        progress = make<Progress>();
        const auto url = folder.url("payload.zip");
        ASSERT_EQ(XBRGetPackageHandler()->createPackage(kZipPackage, toText(url), package.out()), kOk);
        EXPECT_EQ(package->setOption(toText("compressed"), 1), kOk);
        EXPECT_EQ(package->create(), kOk);
    }
    Result add() {
        return package->addFolder(toText(folder.url("payload")), kRecursiveRelative, progress.get());
    }
    Result flush() { return package->flush(progress.get()); }

    TestFolder folder;
    fs::path payload = folder.path() / "payload";
    fs::path archive = folder.path() / "payload.zip";
    Ref<IPackage> package;
    Ref<Progress> progress;
};

TEST_F(PackageTest, HoldsTheFoldersContentsInAFixedOrder) {
    const std::string silence(1'000'000, '\0');
    const std::vector<std::pair<std::string, std::string>> files = {
        {"metadata.json", "{}"},
        {"z last file", ""},
        {"assets/1 Axé.wav", silence},
        {"assets/2.FLAC", silence},
        {"assets/deep/3.mp3", noise(200'000)},
    };
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        writeFile(payload / file->first, file->second);
    }
    EXPECT_EQ(add(), kOk);
    EXPECT_FALSE(fs::exists(archive));
    EXPECT_EQ(flush(), kOk);
    EXPECT_EQ(package->close(), kOk);
    EXPECT_EQ(progress->lastFraction, 1.0);

    const auto entries = entriesOf(archive);
    ASSERT_EQ(entries.size(), files.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        EXPECT_EQ(entries[i].first, files[i].first);
        EXPECT_EQ(entries[i].second.bytes, files[i].second) << files[i].first;
    }
    EXPECT_EQ(entries[2].second.method, ZIP_CM_DEFLATE);
    EXPECT_EQ(entries[3].second.method, ZIP_CM_STORE);
    EXPECT_EQ(entries[4].second.method, ZIP_CM_STORE);
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"payload", "payload.zip"}));
}

/// A source that changes while it is packed must never become an entry that looks right.
TEST_F(PackageTest, ASourceThatChangesIsAnError) {
    const auto song = payload / "song.wav";
    const auto bytes = noise(1'000'000);
    const std::vector<std::pair<const char*, std::function<void()>>> changes = {
        {"shortened", [&] { fs::resize_file(song, 700'000); }},
        {"grown", [&] { std::ofstream(song, std::ios::app) << "more"; }},
        {"written again",
         [&] {
             writeFile(song, std::string(bytes.size(), 'x'));
             fs::last_write_time(song, fs::file_time_type::clock::now() + std::chrono::seconds(5));
         }},
    };
    for (const auto& [what, change] : changes) {
        for (const bool isBeforeFlush : {true, false}) {
            SCOPED_TRACE(what);
            writeFile(song, bytes);
            start();
            EXPECT_EQ(add(), kOk);
            if (isBeforeFlush) {
                change();
            } else {
                progress->then = change;
            }
            EXPECT_EQ(flush(), kUnexpected);
            EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"payload"});
        }
    }
}

TEST_F(PackageTest, CancellingLeavesNoArchiveNorAnOldOne) {
    writeFile(payload / "song.wav", noise(1'000'000));
    writeFile(archive, "old");
    start();
    EXPECT_EQ(add(), kOk);
    progress->then = [&] { progress->cancelled = true; };
    EXPECT_EQ(flush(), kFalse);
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"payload"});

    start();
    progress->cancelled = true;
    EXPECT_EQ(add(), kFalse);
}

TEST_F(PackageTest, AFullDiskLeavesNoPartialArchive) {
    writeFile(payload / "song.mp3", noise(200'000));
    for (const std::uint64_t limit :
         {0, 50, 100'000, 200'100}) { // the last one hits the directory at the end
        start();
        EXPECT_EQ(add(), kOk);
        const FileSizeLimit full(limit);
        EXPECT_EQ(flush(), kUnexpected) << limit;
        EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"payload"}) << limit;
    }
}

TEST_F(PackageTest, TheProgressMayDoAnything) {
    writeFile(payload / "song.wav", noise(500'000));
    progress->then = [&] {
        EXPECT_EQ(flush(), kUnexpected);
        EXPECT_EQ(add(), kUnexpected);
        EXPECT_EQ(package->close(), kUnexpected);
    };
    EXPECT_EQ(add(), kOk);
    IPackage* const borrowed = package.get();
    progress->then = [&] {
        EXPECT_EQ(package->close(), kUnexpected);
        package.reset(); // the last reference
    };
    EXPECT_EQ(borrowed->flush(progress.get()), kOk);
    EXPECT_EQ(entriesOf(archive).size(), 1U);
}

TEST_F(PackageTest, WhatCannotBePackedIsRefused) {
    writeFile(payload / "assets/song.wav", "x");
    fs::create_symlink("/etc/passwd", payload / "assets/link");
    EXPECT_EQ(add(), kUnexpected);
    fs::remove(payload / "assets/link");
    EXPECT_EQ(package->addFolder(toText(folder.url("missing")), kRecursiveRelative, nullptr), kUnexpected);
    EXPECT_EQ(package->addFolder(toText(folder.url("payload")), 1, nullptr), kInvalidArgument);
    EXPECT_EQ(flush(), kUnexpected); // nothing was added
    EXPECT_FALSE(fs::exists(archive));
}

TEST_F(PackageTest, RefusesWrongUse) {
    auto& handler = *XBRGetPackageHandler();
    EXPECT_EQ(handler.createPackage(IPackage::kUid, toText(folder.url("x")), package.out()),
              kInvalidArgument);
    EXPECT_EQ(handler.createPackage(kZipPackage, toText("https://host/x"), package.out()), kInvalidArgument);
    EXPECT_FALSE(package);
    for (const auto* place : {"payload", "missing/x.zip"}) {
        ASSERT_EQ(handler.createPackage(kZipPackage, toText(folder.url(place)), package.out()), kOk);
        EXPECT_EQ(package->create(), kUnexpected) << place;
        EXPECT_EQ(add(), kUnexpected) << place;
        EXPECT_EQ(flush(), kUnexpected) << place;
    }
    start();
    EXPECT_EQ(package->setOption(toText("compressed"), 0), kUnexpected);
    EXPECT_EQ(package->setOption(toText("other"), 1), kInvalidArgument);
    EXPECT_EQ(package->close(), kOk);
    EXPECT_EQ(add(), kUnexpected);
    EXPECT_FALSE(fs::exists(archive));
}

} // namespace
} // namespace xbr::host::tests
