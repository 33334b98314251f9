#pragma once

#include "framework/support/objects/object.h"
#include "host/base/problem.h"

#include <string_view>

namespace xbr::host {

class HostSession;

/// What a session asks of the window or the command line. Outlives the session.
class FrontEnd {
public:
    /// New objects of the classes that modules ask for: IDialog, IProgressIndicator with IProgress,
    /// IFileSelector. Empty where there is none; a module that would ask the user gives up at once then.
    virtual Ref<IObject> makeDialog(HostSession& session) = 0;
    virtual Ref<IObject> makeProgress(HostSession& session) = 0;
    virtual Ref<IObject> makeFileSelector(HostSession&) { return {}; }

    /// Shows the URL that a browser is started for. True when the user can reach it without that browser.
    virtual bool announceBrowser(std::string_view /*url*/) { return false; }

    /// A sign-in cannot be kept or removed. Comes from within a call of a module: to be shown later.
    virtual void storeFailed(const Problem& problem) = 0;

    /// The browser came back, and the modules were told.
    virtual void callbackCame() {}

protected:
    ~FrontEnd() = default;
};

} // namespace xbr::host
