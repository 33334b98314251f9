#pragma once

#include "host/app/process/callbackserver.h"
#include "host/app/process/interruption.h"
#include "host/app/session/activity.h"
#include "host/app/session/modalruns.h"
#include "host/app/settings/configurationstore.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace xbr::host {

class ViewDialogFrame;

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
