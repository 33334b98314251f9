#include "tests/fixtures/testfolder.h"
#include "tests/fixtures/wavefile.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

namespace xbr::host {

namespace {

struct Ended {
    int exitCode;
    std::string output;
    std::string errors;
};

Ended run(const QStringList& arguments) {
    QProcess process;
    process.start(TEST_PROGRAM, arguments);
    process.waitForFinished();
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

} // namespace

TEST(Program, everyErrorHasItsExitCodeAndOneLine) {
    const TestFolder folder;
    const TestVariable runtime("XDG_RUNTIME_DIR", folder.path());
    const struct {
        QStringList arguments;
        int exitCode;
    } cases[] = {
        {{"unknown"}, 2},
        {{"publish"}, 2},
        {{"publish", "--unknown", "a.wav"}, 2},
        {{"publish", "a.wav", "--module"}, 2},
        {{"publish", "--title", "x", "a.wav"}, 2},
        {{"publish", "a.wav", "--title"}, 2},
        {{"publish", "a.wav", "--title", ""}, 2},
        {{"publish", "a.wav", "--title", "x", "--title", "y"}, 2},
        {{"publish", "a.wav", "--track-number", "0"}, 2},
        {{"publish", "a.wav", "--track-number", "2x"}, 2},
        {{"publish", "a.wav", "--album-title", "x"}, 2},
        {{"publish", "a.wav", "--genre", "Pop", "--genre", "Pop"}, 2},
        {{"publish", "--release", "r.json", "a.wav"}, 2},
        {{"publish", "--release", "r.json", "--album"}, 2},
        {{"publish", "--release", "/none.json"}, 2},
        {{"sign-in", "--genre", "Pop"}, 2},
        {{"open-url"}, 2},
        {{"open-url", "--json", "a:b"}, 2},
        {{"open-url", "a:b", "c:d"}, 2},
        {{"open-url", QString(9000, 'x')}, 2},
        {{"sign-in", "--album"}, 2},
        {{"status", "more"}, 2},
        {{"publish", "--module", "/none.so", "a.wav"}, 4},
        {{"sign-out", "--module", "/none.so"}, 4},
        {{"open-url", "brindlex://authorize?code=1"}, 8},
    };
    for (const auto& one : cases) {
        const Ended result = run(one.arguments);
        EXPECT_EQ(result.exitCode, one.exitCode) << one.arguments.join(' ').toStdString();
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors.find("xbrhost: "), 0U);
        EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1) << result.errors;
    }
}

TEST(Program, manualTellsEveryOptionAndExitCode) {
    std::ostringstream bytes;
    bytes << std::ifstream(TEST_MANUAL).rdbuf();
    const std::string manual = bytes.str();
    const std::string help = run({"--help"}).output;
    const std::regex option("--[a-z-]+");
    for (std::sregex_iterator found(help.begin(), help.end(), option), end; found != end; ++found) {
        const std::string escaped = std::regex_replace(found->str(), std::regex("-"), "\\-");
        EXPECT_NE(manual.find(escaped), std::string::npos) << found->str();
    }
    const std::string codes = help.substr(help.find("Exit codes:"));
    const std::regex code("(^|  )([0-9]+)  [a-z]");
    for (std::sregex_iterator found(codes.begin(), codes.end(), code), end; found != end; ++found) {
        EXPECT_NE(manual.find(".B " + found->str(2) + "\n"), std::string::npos) << found->str(2);
    }
}

TEST(Program, jsonTellsTheEnd) {
    const Ended result = run({"publish", "--json", "--module", "/none.so", "a.wav"});
    EXPECT_EQ(result.output, "{\"event\":\"finished\",\"exitCode\":4}\n");
}

} // namespace xbr::host
