#pragma once

#include "framework/support/parts/classfactory.h"
#include "host/app/headless/consolecontext.h"

namespace xbr::host {

enum class Dialogs : std::uint8_t {
    kOffered,
    kNone, ///< a module that would ask the user gives up at once
};

/// The classes of this front end: progress on the output, and where wanted the dialog that waits. With the
/// plug-in manager as long as this object lives.
class ConsoleClasses {
public:
    ConsoleClasses(ConsoleContext& context, Dialogs dialogs);
    ConsoleClasses(const ConsoleClasses&) = delete;
    ConsoleClasses& operator=(const ConsoleClasses&) = delete;
    ~ConsoleClasses();

private:
    Ref<ClassFactory> m_classes;
};

} // namespace xbr::host
