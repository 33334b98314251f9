#include "tests/host/app/testfolder.h"
#include "tests/host/app/wavefile.h"

#include <QProcess>
#include <gtest/gtest.h>

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
        {{}, 2},
        {{"unknown"}, 2},
        {{"publish"}, 2},
        {{"publish", "--unknown", "a.wav"}, 2},
        {{"publish", "a.wav", "--module"}, 2},
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

TEST(Program, jsonTellsTheEnd) {
    const Ended result = run({"publish", "--json", "--module", "/none.so", "a.wav"});
    EXPECT_EQ(result.output, "{\"event\":\"finished\",\"exitCode\":4}\n");
}

} // namespace xbr::host
