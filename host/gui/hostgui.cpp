#include "host/gui/hostgui.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"
#include "host/gui/skin/theme.h"

namespace xbr::host {

namespace {

ClassFactory& guiClasses() {
    static const ClassDescription kTheme{0, ITheme::kClassUid, toText("Host"), toText("Theme"), {}, {}};
    // Never destroyed: the plug-in manager may hold it until the process ends.
    static ClassFactory* const classes = [] {
        auto made = make<ClassFactory>();
        made->add(kTheme, creatorOf<Theme>());
        return made.detach();
    }();
    return *classes;
}

} // namespace

void registerGuiClasses() {
    XBRGetPlugInManager()->addFactory(&guiClasses());
}

void unregisterGuiClasses() {
    XBRGetPlugInManager()->removeFactory(&guiClasses());
}

} // namespace xbr::host
