#pragma once

#include "framework/abi/filesystem.h"
#include "framework/abi/package.h"
#include "framework/support/objects/text.h"
#include "host/system/hostsystem.h"
#include "tests/fixtures/testfolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <thread>
#include <vector>

namespace xbr::host::tests {

/// Zeros that take no room on the disk.
inline void writeSparseFile(const std::filesystem::path& path, std::uint64_t size) {
    writeFile(path, "");
    std::filesystem::resize_file(path, size);
}

/// The names of everything in a folder, hidden files included.
inline std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Bytes that do not deflate; the same each time.
inline std::string noise(std::size_t size) {
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same bytes in each run
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

/// Records what is reported, and lets a test do something in the middle.
class RecordingProgress final : public Object<IProgress> {
public:
    void update(double fraction, Text what) noexcept override {
        EXPECT_EQ(std::this_thread::get_id(), m_thread);
        EXPECT_GE(fraction, lastFraction);
        lastFraction = fraction;
        names.push_back(toString(what));
        if (then && fraction >= thenFrom) {
            std::exchange(then, nullptr)();
        }
    }
    bool isCancelled() noexcept override { return cancelled; }

    double lastFraction = 0.0;
    std::vector<std::string> names;
    bool cancelled = false;
    std::function<void()> then; ///< runs once, during the first report from `thenFrom` on
    double thenFrom = 0.0;

private:
    std::thread::id m_thread = std::this_thread::get_id();
};

/// A folder "payload" that is packed into "payload.zip" beside it.
class PackageTest : public testing::Test {
protected:
    PackageTest() {
        setFileProblemListener([this](const Problem& problem) { problems.push_back(problem); });
        std::filesystem::create_directories(payload);
        start();
    }
    ~PackageTest() override { setFileProblemListener({}); }

    /// A new package at the archive's place, and a new progress.
    void start(bool isCompressed = true) {
        progress = make<RecordingProgress>();
        problems.clear();
        const auto url = folder.url("payload.zip");
        ASSERT_EQ(XBRGetPackageHandler()->createPackage(kZipPackage, toText(url), package.out()), kOk);
        EXPECT_EQ(package->setOption(toText("compressed"), isCompressed ? 1 : 0), kOk);
        EXPECT_EQ(package->create(), kOk);
    }
    Result add() {
        return package->addFolder(toText(folder.url("payload")), kRecursiveRelative, progress.get());
    }
    Result flush() { return package->flush(progress.get()); }

    /// Neither an archive nor a part of one.
    void expectNothingLeft() const { EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>{"payload"}); }

    TestFolder folder;
    std::filesystem::path payload = folder.path() / "payload";
    std::filesystem::path archive = folder.path() / "payload.zip";
    Ref<IPackage> package;
    Ref<RecordingProgress> progress;
    std::vector<Problem> problems; ///< that the host program hears of
};

} // namespace xbr::host::tests
