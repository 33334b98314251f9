#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/app/modules/publishentry.h"
#include "host/app/texts/programtexts.h"
#include "host/app/window/start/windowfront.h"
#include "tests/host/app/fakefront.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStackedWidget>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// How long a person waits: until the panel is there, and for each key that is typed in its editor.

namespace xbr::host {

namespace {

constexpr QSize kPanelSize(500, 700);

void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// From the module's class to pixels.
void openPanel(benchmark::State& state) {
    FakeFront front;
    HostSession session(front, {BRINDLEX_MODULE, false, false});
    session.start();
    DialogPlace place{session};
    for (auto _ : state) {
        {
            GadgetDock dock(
                findGadgets().front(), place, [](const QString&) {}, nullptr);
            dock.resize(kPanelSize);
            dock.show();
            settle();
            benchmark::DoNotOptimize(dock.grab());
        }
        session.closePanels();
    }
}

/// The whole program: modules, window, panel.
void openWindow(benchmark::State& state) {
    for (auto _ : state) {
        WindowFront host({BRINDLEX_MODULE, {}});
        host.start();
        settle();
        benchmark::DoNotOptimize(host.window().grab());
    }
}

/// Tracks in the panel's list, the first in the editor.
class FullPanel {
public:
    FullPanel(std::int64_t count, bool isAlbum) : m_host({BRINDLEX_MODULE, {}}) {
        m_host.start();
        const auto items = make<PublishedItems>();
        for (std::int64_t i = 0; i < count; ++i) {
            const auto media = make<Attributes>();
            media->set("Media:Title", "Take " + std::to_string(i));
            items->add("file:///music/take%20" + std::to_string(i) + ".wav", media);
        }
        const auto entries = findPublishEntries();
        createPublisher(entries.front())->publish(items.get());
        panel().set("TrackList/albumUpload", isAlbum ? 1 : 0);
        showTracks();
        panel().tracks()->setFocus(0);
        settle();
    }

    QLineEdit* field(const char* name) { return m_host.window().findChild<QLineEdit*>(name); }

private:
    GadgetPanel& panel() { return *m_host.window().docks().front()->panel(); }

    /// Nobody is signed in: the page of the tracks is turned to by hand.
    void showTracks() {
        auto* pages = m_host.window().findChild<QStackedWidget*>("pages");
        pages->setCurrentIndex(1);
    }

    WindowFront m_host;
};

void press(QWidget& field, int key, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&field, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&field, &up);
}

/// One key, until everything that it changes is drawn.
void typeKey(benchmark::State& state, const char* name, bool isAlbum) {
    FullPanel panel(state.range(0), isAlbum);
    QLineEdit* field = panel.field(name);
    if (!field || !field->isVisible()) {
        state.SkipWithError("the editor is not to be seen");
        return;
    }
    field->setFocus();
    bool isEven = false;
    for (auto _ : state) {
        isEven = !isEven;
        press(*field, isEven ? Qt::Key_A : Qt::Key_Backspace, isEven ? "a" : "");
        settle();
    }
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(openPanel)->Unit(benchmark::kMillisecond);
BENCHMARK(openWindow)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeKey, song title of a single, "songTitle", false)->Apply(sizes);
BENCHMARK_CAPTURE(typeKey, album title of an album, "albumTitle", true)->Apply(sizes);

} // namespace

} // namespace xbr::host

int main(int argc, char** argv) {
    const QTemporaryDir folder; // nothing of the user's is read or written
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(variable, folder.path().toUtf8());
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const xbr::host::ProgramTexts texts;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
