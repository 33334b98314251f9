#pragma once

#include "host/gui/build/componentclass.h" // setComponentSettings

/// What the host program sets up in this library. Modules never use it.
namespace xbr::host {

/// Adds the classes of this library (ITheme) to the plug-in manager. Does nothing when they are there
/// already. Main thread.
[[gnu::visibility("default")]] void registerGuiClasses();

/// Takes them away again; objects that were made stay usable. Main thread.
[[gnu::visibility("default")]] void unregisterGuiClasses();

} // namespace xbr::host
