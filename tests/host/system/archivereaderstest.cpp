#include "tests/host/system/packagefixture.h"

#include <cstdlib>

namespace xbr::host::tests {
namespace {

/// How programs extract the archive that is beside their folder; the name of one entry may follow.
constexpr const char* kReaders[] = {
    "unzip -q ../payload.zip", "7z x -bd ../payload.zip >/dev/null", "bsdtar -xf ../payload.zip",
    R"(python3 -c 'import sys, zipfile as z; z.ZipFile("../payload.zip").extractall(None, sys.argv[1:] or None)')"};

void expectSuccess(const std::string& command) {
    EXPECT_EQ(std::system(command.c_str()), 0) << command; // NOLINT(cert-env33-c,concurrency-mt-unsafe)
}

/// Each program extracts, all or the one entry, and `check` is content with its folder.
void expectAllExtract(const TestFolder& folder, const std::string& entry, const std::string& check) {
    const auto out = folder.path("out");
    for (const std::string reader : kReaders) {
        expectSuccess("export LC_ALL=C.UTF-8; mkdir " + out + " && cd " + out + " && " + reader + " " +
                      entry + " && " + check + " && rm -r " + out);
    }
}

TEST_F(PackageTest, EveryReaderExtractsTheSameFiles) {
    std::string text;
    while (text.size() < 1'000'000) {
        text += "all work and no play makes a dull boy, " + std::to_string(text.size());
    }
    writeFile(payload / "empty", "");
    writeFile(payload / "assets/01 Axé – 夜.wav", text);
    writeFile(payload / "assets/02 “quoted” & 'ticked'.mp3", noise(700'000));
    EXPECT_EQ(add(), kOk);
    EXPECT_EQ(flush(), kOk);
    expectAllExtract(folder, "", "diff -r . ../payload");
}

/// Sizes, and places of entries, that take more than 32 bits.
TEST_F(PackageTest, LargeEntriesBeyondFourGigabytes) {
    writeSparseFile(payload / "a large.wav", (std::uint64_t{4} << 30U) + 5);
    writeFile(payload / "z behind it", "still found");
    EXPECT_EQ(add(), kOk);
    EXPECT_EQ(flush(), kOk);
    expectAllExtract(folder, "'z behind it'", "diff 'z behind it' ../payload");
    expectSuccess("7z t -bd " + archive.string() + " >/dev/null"); // the quickest at 4 GiB
}

} // namespace
} // namespace xbr::host::tests
