#include "host/system/package/packagepipeline.h"
#include "tests/host/system/packagefixture.h"

#include <zip.h>

#include <cmath>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

using Files = std::vector<std::pair<std::string, std::string>>; // names and bytes

/// The entries of an archive, all packed by that method, checked against their check sums.
Files entriesOf(const fs::path& path, int method) {
    Files entries;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    for (zip_int64_t i = 0; archive && i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t status;
        zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &status);
        EXPECT_EQ(status.comp_method, method) << status.name;
        zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        std::string bytes(status.size + 1, '\0');
        const auto size = std::max(zip_fread(file, bytes.data(), bytes.size()), zip_int64_t{0});
        zip_fclose(file);
        entries.emplace_back(status.name, bytes.substr(0, static_cast<std::size_t>(size)));
    }
    zip_discard(archive);
    return entries;
}

/// A decaying tone with hiss, as 16-bit samples.
std::string music(std::size_t size) {
    std::string bytes = noise(size);
    for (std::size_t i = 0; i + 1 < size; i += 2) {
        const double beat = static_cast<double>(i % 48'000) / 48'000;
        const auto hiss = static_cast<unsigned char>(bytes[i]) % 16;
        const auto sample = static_cast<int>(9'000 * std::exp(-4 * beat) * std::sin(440 * beat)) + hiss;
        bytes[i] = static_cast<char>(sample);
        bytes[i + 1] = static_cast<char>(sample >> 8); // NOLINT(hicpp-signed-bitwise)
    }
    return bytes;
}

/// Entries are cut into pieces; nothing may get lost where they meet.
TEST_F(PackageTest, HoldsTheFoldersContentsInAFixedOrder) {
    constexpr auto kPiece = PackagePipeline::kPieceSize;
    const auto all = music(5 * kPiece);
    std::vector<std::size_t> sizes = {0,      1,          2,          65'535,         65'536,    kPiece - 1,
                                      kPiece, kPiece + 1, 2 * kPiece, 5 * kPiece - 1, 5 * kPiece};
    for (std::size_t i = 0; i < 300; ++i) {
        sizes.push_back(100 * i); // more files than the pipeline holds pieces
    }
    Files files = {{"metadata.json", "one song, one song, one song"}, {"z last file", ""}};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        files.emplace_back("assets/" + std::to_string(1000 + i), all.substr(0, sizes[i]));
    }
    files.insert(files.end(), {{"assets/2 Axé.FLAC", noise(1'000'000)},
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
        EXPECT_TRUE(entriesOf(archive, isCompressed ? ZIP_CM_DEFLATE : ZIP_CM_STORE) == files);
        EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{"payload", "payload.zip"}));
    }
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
    EXPECT_EQ(entriesOf(archive, ZIP_CM_DEFLATE).size(), 1U);
}

TEST_F(PackageTest, WhatCannotBePackedIsRefused) {
    writeFile(payload / "assets/song.wav", "x");
    EXPECT_EQ(package->addFolder(toText(folder.url("payload")), 1, nullptr), kInvalidArgument);
    EXPECT_EQ(package->setOption(toText("compressed"), 0), kUnexpected) << "too late";
    EXPECT_EQ(package->setOption(toText("other"), 1), kInvalidArgument);
    fs::create_symlink("/etc/passwd", payload / "assets/link");
    EXPECT_EQ(add(), kUnexpected);
    fs::remove(payload / "assets/link");
    EXPECT_EQ(add(), kUnexpected) << "something was refused";
    EXPECT_EQ(flush(), kUnexpected);
    start();
    EXPECT_EQ(package->addFolder(toText(folder.url("missing")), kRecursiveRelative, nullptr), kUnexpected);
    start();
    EXPECT_EQ(package->close(), kOk);
    EXPECT_EQ(add(), kUnexpected);

    auto& handler = *XBRGetPackageHandler();
    for (const auto* place : {"payload", "missing/x.zip"}) {
        ASSERT_EQ(handler.createPackage(kZipPackage, toText(folder.url(place)), package.out()), kOk);
        EXPECT_EQ(package->create(), kUnexpected) << place;
        EXPECT_EQ(add(), kUnexpected) << place;
        EXPECT_EQ(flush(), kUnexpected) << place;
    }
    EXPECT_EQ(handler.createPackage(IPackage::kUid, toText(folder.url("x")), package.out()),
              kInvalidArgument);
    EXPECT_EQ(handler.createPackage(kZipPackage, toText("https://host/x"), package.out()), kInvalidArgument);
    EXPECT_FALSE(package);
    expectNothingLeft();
}

} // namespace
} // namespace xbr::host::tests
