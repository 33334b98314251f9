#pragma once

#include "framework/support/parts/classfactory.h"
#include "host/app/window/dialogs/windowcontext.h"

namespace xbr::host {

/// The classes of this front end for modules: dialog, progress indicator and file selector. With the plug-in
/// manager as long as this object lives.
class WindowClasses {
public:
    explicit WindowClasses(WindowContext& context);
    WindowClasses(const WindowClasses&) = delete;
    WindowClasses& operator=(const WindowClasses&) = delete;
    ~WindowClasses();

private:
    Ref<ClassFactory> m_classes;
};

} // namespace xbr::host
