#pragma once

#include "host/app/core/activity.h"
#include "host/app/core/callbackserver.h"
#include "host/app/core/configurationstore.h"
#include "host/app/core/interruption.h"
#include "host/app/window/modalruns.h"
#include "host/app/window/viewdialogframe.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace xbr::host {

/// What the window's classes for modules share with the window. Outlives every object that a module makes.
struct WindowContext {
    WindowContext() : configuration(std::make_shared<ConfigurationReport>()) {}

    QPointer<QWidget> window;         ///< dialogs belong to it
    QPointer<ViewDialogFrame> dialog; ///< of a module; the one on top
    ModalRuns modalRuns;
    Interruption interruption;
    Activity activity;
    CallbackServer callbacks;
    std::shared_ptr<ConfigurationReport> configuration;
    std::function<void(bool isCancelled)> preparationEnded; ///< a progress indicator was taken away
};

} // namespace xbr::host
