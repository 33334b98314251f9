#include "bench/responsiveness/person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace xbr::host {

namespace {

constexpr int kBeat = 2;
constexpr double kNanoseconds = 1e6; // a millisecond
constexpr int kLongest = 240'000;

/// The most memory that the process had, in MiB.
double peakMemory() {
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray status = file.readAll();
    const auto place = status.indexOf("VmHWM:");
    return status.mid(place + 6, status.indexOf("kB", place) - place - 6).trimmed().toDouble() / 1024;
}

} // namespace

Heartbeat::Heartbeat() {
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
    start();
}

void Heartbeat::start() {
    m_longest = 0;
    m_since.start();
    m_timer.start(kBeat);
}

void Heartbeat::beat() {
    m_longest = std::max(m_longest, m_since.nsecsElapsed());
    m_since.restart();
}

double Heartbeat::longestGap() {
    beat();
    return static_cast<double>(m_longest) / kNanoseconds;
}

Person::Person() : m_host(std::make_unique<WindowFront>(WindowOptions{BRINDLEX_MODULE, {}})) {
    m_host->start();
    wait(500);
}

void Person::measure(const std::string& name) {
    const double gap = m_heart.longestGap();
    if (!m_name.empty()) {
        std::printf("{\"what\":\"%s\",\"gap\":%.1f,\"seconds\":%.2f,\"peak\":%.1f}\n", m_name.c_str(), gap,
                    static_cast<double>(m_clock.elapsed()) / 1000, peakMemory());
        std::fflush(stdout);
    }
    m_name = name;
    m_clock.start();
    m_heart.start();
}

void Person::wait(int milliseconds) {
    QTest::qWait(milliseconds);
}

void Person::waitUntil(const std::function<bool()>& done) {
    if (!QTest::qWaitFor(done, kLongest)) {
        std::fprintf(stderr, "it took too long: %s\n", m_name.c_str());
        std::exit(1);
    }
}

bool Person::isSeen(const char* name) {
    const auto* widget = find<QWidget>(name);
    return widget && widget->isVisible();
}

void Person::click(const char* name) {
    QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton);
}

void Person::type(const char* name, const QString& text) {
    auto* field = find<QLineEdit>(name);
    field->setFocus();
    for (const QChar c : text) {
        QTest::keyClick(field, c.toLatin1());
        wait(16);
    }
}

void Person::pageDown(QAbstractScrollArea& area, int times, int milliseconds) {
    for (int i = 0, atEnd = 0; i < times && atEnd < 20; ++i) {
        QTest::keyClick(&area, Qt::Key_PageDown);
        wait(milliseconds);
        const QScrollBar& bar = *area.verticalScrollBar();
        atEnd = bar.value() == bar.maximum() ? atEnd + 1 : 0;
    }
}

void Person::leave() {
    // What was typed is not sent, and asked about.
    QTimer answering;
    answering.callOnTimeout([] {
        const QWidget* question = QApplication::activeModalWidget();
        for (auto* button :
             question ? question->findChildren<QAbstractButton*>() : QList<QAbstractButton*>()) {
            if (button->text().endsWith("Quit")) {
                button->click();
            }
        }
    });
    answering.start(20);
    m_host->window().close();
    m_host.reset();
}

} // namespace xbr::host
