// With a session bus that accepts and never says a word.

#include "host/app/process/callbackclient.h"
#include "tests/window/fixture.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

namespace xbr::host::tests {

namespace {

/// Wants the window painted again and again, and measures while the keyring is waited for.
class Painting final : public QObject {
public:
    Painting() {
        static constexpr int kPause = 10; // milliseconds
        qApp->installEventFilter(this);
        m_timer.callOnTimeout([] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                widget->update();
            }
        });
        m_timer.start(kPause);
    }

    /// The part of the time since it was asked in which the window was painted ten times a second or more.
    double share() {
        const auto time = static_cast<double>(std::max<qint64>(std::exchange(m_time, 0), 1));
        return static_cast<double>(std::exchange(m_fluent, 0)) / time;
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QWidget* modal = QApplication::activeModalWidget();
        const bool isWaiting = modal && modal->objectName() == "keyringSheet";
        if (isWaiting && !(event->type() == QEvent::Paint && qobject_cast<MainWindow*>(watched))) {
            return false;
        }
        const qint64 pause = m_last.isValid() ? m_last.elapsed() : 0;
        m_time += pause;
        m_fluent += pause <= kTenth ? pause : 0;
        isWaiting ? m_last.start() : m_last.invalidate();
        return false;
    }

    static constexpr qint64 kTenth = 100; // milliseconds

    QTimer m_timer;
    QElapsedTimer m_last;
    qint64 m_time = 0;
    qint64 m_fluent = 0; ///< of it, without a longer pause
};

} // namespace

TEST_F(WindowTest, isPaintedWhileTheKeyringDoesNotAnswer) {
    Painting painting;
    stage.silenceSessionBus();
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[this] { stage.open(); }, "The keyring does not answer: the stored sign-in cannot be read."},
        {[this] { click(window(), "connect"); },
         "Signed in as Mara Lindqvist, until the program ends: the keyring does not answer."},
        {[this] { click(window(), "disconnect"); },
         "The keyring does not answer: the stored sign-in may still be there."}};
    for (const auto& [act, sentence] : steps) {
        act();
        EXPECT_TRUE(statusSays(sentence)) << stage.status();
        EXPECT_GT(painting.share(), 0.5) << sentence; // other programs may take the processor for a moment
    }
}

TEST(SilentSessionBus, isNotWaitedForByTheWindow) {
    Stage stage;
    stage.silenceSessionBus();
    QProcess program;
    program.start(TEST_PROGRAM, {"window", "--module", TEST_MODULE});
    EXPECT_TRUE(waitFor([] { return sendToHosts("xbrhost:window") == Delivery::kTaken; }));
    program.terminate();
    EXPECT_TRUE(program.waitForFinished());
}

} // namespace xbr::host::tests
