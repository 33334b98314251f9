#pragma once

#include "host/app/session/hostsession.h"

#include <QPointer>
#include <QWidget>

namespace xbr::host {

class ViewDialogFrame;

/// Where the dialogs of modules appear. Outlives every object that a module makes.
struct DialogPlace {
    HostSession& session;
    QPointer<QWidget> window{};         ///< dialogs belong to it
    QString address{};                  ///< for which a browser was started last
    QPointer<ViewDialogFrame> dialog{}; ///< of a module; the one on top
};

} // namespace xbr::host
