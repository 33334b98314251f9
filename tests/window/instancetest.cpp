// The program itself, started once and again.

#include "host/app/process/callbackclient.h"
#include "tests/window/stage.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <filesystem>

namespace xbr::host::tests {

namespace {

class Instance : public testing::Test {
protected:
    Instance() { qputenv("XBRHOST_MODULE_PATH", TEST_MODULE); }
    ~Instance() override { qunsetenv("XBRHOST_MODULE_PATH"); }

    static int run(const QStringList& arguments) { return QProcess::execute(TEST_PROGRAM, arguments); }

    /// The window that is open answers from now on.
    static bool isUp() {
        return waitFor([] { return sendToHosts("xbrhost:window") == Delivery::kTaken; });
    }

    bool isTemporaryFolderEmpty() const { return std::filesystem::is_empty(m_stage.path("tmp")); }

    Stage m_stage;
};

} // namespace

TEST_F(Instance, theSecondStartShowsTheFirstWindowAndEnds) {
    QProcess first;
    first.start(TEST_PROGRAM, QStringList());
    ASSERT_TRUE(isUp());
    EXPECT_EQ(run({"window", QString::fromStdString(m_stage.songs().front())}), 0);
    EXPECT_EQ(run({}), 0);
    EXPECT_EQ(first.state(), QProcess::Running);

    // A signal ends it in an orderly way, and the next one may open.
    first.terminate();
    EXPECT_TRUE(first.waitForFinished());
    EXPECT_EQ(first.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(run({"open-url", "xbrhost:window"}), 8) << "nobody there";
    EXPECT_TRUE(isTemporaryFolderEmpty());
}

TEST_F(Instance, whoWasKilledIsNotInTheWay) {
    QProcess first;
    first.start(TEST_PROGRAM, QStringList());
    ASSERT_TRUE(isUp());
    first.kill();
    ASSERT_TRUE(first.waitForFinished());
    QProcess second;
    second.start(TEST_PROGRAM, QStringList());
    EXPECT_TRUE(isUp());
    second.terminate();
    EXPECT_TRUE(second.waitForFinished());
    EXPECT_EQ(second.exitCode(), 0);
}

TEST_F(Instance, wrongUseIsRefused) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(variable);
    }
    for (const char* sentence : {"xbrhost: there is no display", "xbrhost: the display cannot be reached"}) {
        process.setProcessEnvironment(environment);
        process.start(TEST_PROGRAM, QStringList());
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 2) << sentence;
        const QByteArray told = process.readAllStandardError();
        EXPECT_TRUE(told.startsWith(sentence) && told.count('\n') == 1) << told.toStdString();
        environment.insert("DISPLAY", ":1234");
    }
    EXPECT_EQ(run({"window", "--unknown"}), 2);
    EXPECT_EQ(run({"window", "--module"}), 2);
}

} // namespace xbr::host::tests
