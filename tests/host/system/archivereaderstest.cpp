#include "tests/host/system/packagefixture.h"

#include <QProcess>
#include <QStringList>

#include <map>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

/// How a program reads an archive; ARCHIVE and FOLDER stand for the paths.
struct Reader {
    const char* program;
    QStringList extractAll;
    QStringList extractLast; ///< the file "z behind it" only
};

const std::vector<Reader>& readers() {
    static const QString python = "import sys, zipfile; zipfile.ZipFile(sys.argv[1]).extract(*sys.argv[2:])";
    static const std::vector<Reader> table = {
        {"unzip", {"-q", "ARCHIVE", "-d", "FOLDER"}, {"-q", "ARCHIVE", "z behind it", "-d", "FOLDER"}},
        {"7z", {"x", "-bd", "-oFOLDER", "ARCHIVE"}, {"x", "-bd", "-oFOLDER", "ARCHIVE", "z behind it"}},
        {"bsdtar", {"-xf", "ARCHIVE", "-C", "FOLDER"}, {"-xf", "ARCHIVE", "-C", "FOLDER", "z behind it"}},
        {"python3",
         {"-m", "zipfile", "-e", "ARCHIVE", "FOLDER"},
         {"-c", python, "ARCHIVE", "z behind it", "FOLDER"}},
    };
    return table;
}

/// What the program said; empty when it was content.
std::string run(const char* program, QStringList arguments, const fs::path& archive, const fs::path& target) {
    arguments.replaceInStrings("ARCHIVE", QString::fromStdString(archive.string()));
    arguments.replaceInStrings("FOLDER", QString::fromStdString(target.string()));
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool isDone = process.waitForFinished(240'000) && process.exitStatus() == QProcess::NormalExit;
    const auto output = process.readAll().toStdString();
    return isDone && process.exitCode() == 0 ? "" : std::string(program) + " failed: " + output;
}

std::map<std::string, std::string> filesBelow(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files.emplace(fs::relative(entry.path(), folder).string(), readFile(entry.path()));
        }
    }
    return files;
}

TEST_F(PackageTest, EveryReaderExtractsTheSameFiles) {
    const std::string words = "all work and no play makes a dull boy, ";
    std::string text;
    while (text.size() < 1'000'000) {
        text += words + std::to_string(text.size());
    }
    writeFile(payload / "metadata.json", "{}");
    writeFile(payload / "empty", "");
    writeFile(payload / "assets/01 Axé – 夜.wav", text);
    writeFile(payload / "assets/02 “quoted” & 'ticked'.mp3", noise(700'000));
    EXPECT_EQ(add(), kOk);
    EXPECT_EQ(flush(), kOk);
    const auto expected = filesBelow(payload);
    ASSERT_EQ(expected.size(), 4U);
    for (const auto& [program, extractAll, extractLast] : readers()) {
        const auto target = folder.path() / program;
        fs::create_directory(target);
        EXPECT_EQ(run(program, extractAll, archive, target), "");
        EXPECT_TRUE(filesBelow(target) == expected) << program;
    }
}

/// Sizes, and places of entries, that take more than 32 bits (APPNOTE 4.5.3).
TEST_F(PackageTest, LargeEntriesBeyondFourGigabytes) {
    constexpr std::uint64_t kLarge = (std::uint64_t{4} << 30U) + 5;
    writeSparseFile(payload / "a large.wav", kLarge);
    writeFile(payload / "z behind it", "still found");
    EXPECT_EQ(add(), kOk);
    EXPECT_EQ(flush(), kOk);
    for (const auto& [program, extractAll, extractLast] : readers()) {
        const auto target = folder.path() / program;
        fs::create_directory(target);
        EXPECT_EQ(run(program, extractLast, archive, target), "");
        EXPECT_EQ(readFile(target / "z behind it"), "still found") << program;
    }
    EXPECT_EQ(run("7z", {"t", "-bd", "ARCHIVE"}, archive, {}), ""); // the quickest at 4 GiB
}

} // namespace
} // namespace xbr::host::tests
