#include "host/app/window/start/window.h"

#include "host/app/process/singleinstance.h"
#include "host/app/texts/programtexts.h"
#include "host/app/window/start/windowfront.h"

#include <QApplication>
#include <QCoreApplication>
#include <QStyleFactory>

#include <cstdlib>
#include <iostream>

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
    QApplication application(argc, argv);
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
