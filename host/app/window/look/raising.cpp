#include "host/app/window/look/raising.h"

#include <QApplication>
#include <QWidget>

namespace xbr::host {

void raise(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    QApplication::alert(&window);
}

} // namespace xbr::host
