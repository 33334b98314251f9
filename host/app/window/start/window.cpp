#include "host/app/window/start/window.h"

#include "host/app/process/singleinstance.h"
#include "host/app/texts/programtexts.h"
#include "host/app/window/start/windowfront.h"
#include "host/security/hostsecurity.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QStyleFactory>

#include <cstdlib>
#include <iostream>
#include <optional>

namespace xbr::host {

namespace {

bool isSet(const char* variable) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nobody writes the environment
    return value && *value;
}

/// Without one the library for windows would end the process with a core dump.
bool hasDisplay() {
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

ExitCode fail(const std::string& text) {
    std::cerr << "xbrhost: " << text << std::endl;
    return ExitCode::kUsage;
}

/// Where the library for windows cannot reach the display it ends the process with a core dump.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type == QtFatalMsg) {
        std::_Exit(static_cast<int>(
            fail("the display cannot be reached (xbrhost --help lists what works without)")));
    }
}

/// Hides a session bus that does not answer from Qt, which would wait for it without end while it starts, and
/// goes without then. Qt reads the address once, and everything else has it as before.
class SilentBusHidden {
public:
    SilentBusHidden() : m_isSilent(isSessionBusSilent()), m_address(qgetenv(kVariable)) {
        if (m_isSilent) {
            qputenv(kVariable, "disabled:");
        }
    }
    SilentBusHidden(const SilentBusHidden&) = delete;
    SilentBusHidden& operator=(const SilentBusHidden&) = delete;
    ~SilentBusHidden() {
        if (m_isSilent) {
            QDBusConnection::sessionBus(); // in case that it was not read yet
            m_address.isNull() ? qunsetenv(kVariable) : qputenv(kVariable, m_address);
        }
    }

private:
    static constexpr char kVariable[] = "DBUS_SESSION_BUS_ADDRESS";

    bool m_isSilent;
    QByteArray m_address;
};

ExitCode open(const WindowOptions& options) {
    WindowFront front(options);
    QObject::connect(&front.window(), &MainWindow::closed, qApp, &QCoreApplication::quit);
    front.start();
    QApplication::exec();
    return ExitCode::kDone;
}

} // namespace

ExitCode runWindow(int& argc, char** argv, const WindowOptions& options) {
    if (!hasDisplay()) {
        return fail("there is no display for the window (xbrhost --help lists what works without)");
    }
    SingleInstance instance;
    const auto place = instance.take(options.files);
    if (!place) {
        return fail(place.problem().words);
    }
    switch (*place) {
    case SingleInstance::Place::kSecond:
        return ExitCode::kDone;
    case SingleInstance::Place::kNoAnswer:
        return fail("another xbrhost has the window, but does not answer");
    case SingleInstance::Place::kFirst:
        break;
    }
    const QtMessageHandler usual = qInstallMessageHandler(&endWithoutDisplay);
    std::optional<SilentBusHidden> hidden(std::in_place);
    QApplication application(argc, argv);
    hidden.reset();
    qInstallMessageHandler(usual);
    QApplication::setApplicationName("xbrhost");
    QApplication::setApplicationVersion(XBR_HOST_VERSION);
    QGuiApplication::setDesktopFileName("xbrhost");
    QApplication::setQuitOnLastWindowClosed(false); // a dialog of a module may be the last one for a moment
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const ProgramTexts texts;
    return open(options);
}

} // namespace xbr::host
