// The program itself, started once and again.

#include "host/app/process/callbackclient.h"
#include "tests/window/person.h"
#include "tests/window/stage.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <filesystem>

namespace xbr::host::tests {

namespace {

namespace fs = std::filesystem;

class Instance : public testing::Test {
protected:
    Instance() { m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel); }

    static int run(const QStringList& arguments) { return QProcess::execute(TEST_PROGRAM, arguments); }

    /// Opens the window, which answers from then on.
    void start() {
        m_program.start(TEST_PROGRAM, {"window", "--module", TEST_MODULE});
        EXPECT_TRUE(waitFor([] { return sendToHosts("xbrhost:window") == Delivery::kTaken; }));
    }

    /// A signal ends it in an orderly way.
    void end() {
        m_program.terminate();
        EXPECT_TRUE(m_program.waitForFinished());
        EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_program.exitCode(), 0);
        EXPECT_EQ(run({"open-url", "xbrhost:window"}), 8) << "nobody there";
        EXPECT_TRUE(fs::is_empty(m_stage.path("tmp")));
        EXPECT_FALSE(fs::exists(m_stage.path("run/xbrhost")));
    }

    Stage m_stage;
    QProcess m_program;
};

} // namespace

TEST_F(Instance, theSecondStartShowsTheFirstWindowAndEnds) {
    start();
    EXPECT_EQ(run({"window", QString::fromStdString(m_stage.songs().front())}), 0);
    EXPECT_EQ(run({}), 0);
    EXPECT_EQ(m_program.state(), QProcess::Running);
    run({"status"});
    EXPECT_FALSE(fs::is_empty(m_stage.path("tmp"))) << "another process leaves its files alone";
    end();
}

TEST_F(Instance, whoWasKilledIsNotInTheWay) {
    start();
    m_program.kill();
    ASSERT_TRUE(m_program.waitForFinished());
    const std::string foreign = m_stage.path("tmp/xbr-cccccc"); // without the mark of a host
    fs::create_directory(foreign);
    fs::permissions(foreign, fs::perms::owner_all);
    start();
    EXPECT_TRUE(fs::remove(foreign)) << "nobody else's files go";
    end();
}

TEST_F(Instance, aSilentSessionBusIsNotWaitedFor) {
    m_stage.silenceSessionBus();
    start();
    end();
}

TEST_F(Instance, withoutADisplayItSaysSo) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(variable);
    }
    for (const char* sentence : {"xbrhost: there is no display", "xbrhost: the display cannot be reached"}) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(TEST_PROGRAM, QStringList());
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 2) << sentence;
        const QByteArray told = process.readAllStandardError();
        EXPECT_TRUE(told.startsWith(sentence) && told.count('\n') == 1) << told.toStdString();
        environment.insert("DISPLAY", ":1234");
    }
}

} // namespace xbr::host::tests
