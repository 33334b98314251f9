// With a session bus that accepts and never says a word.

#include "tests/window/fixture.h"

namespace xbr::host::tests {

namespace {

/// Wants the window painted again and again, and counts how often it is while the keyring is waited for.
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

    int times = 0;

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QWidget* modal = QApplication::activeModalWidget();
        const bool isWaiting = modal && modal->objectName() == "keyringSheet";
        times += isWaiting && event->type() == QEvent::Paint && qobject_cast<MainWindow*>(watched) ? 1 : 0;
        return false;
    }

    QTimer m_timer;
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
        painting.times = 0;
        act();
        EXPECT_TRUE(statusSays(sentence));
        EXPECT_GT(painting.times, 5) << sentence; // of hundreds, when the machine has nothing else to do
    }
}

} // namespace xbr::host::tests
