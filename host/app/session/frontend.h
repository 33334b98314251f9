#pragma once

#include "framework/support/objects/object.h"
#include "host/app/session/activity.h"

#include <string>
#include <string_view>

namespace xbr::host {

class HostSession;

/// What a session asks of the window or the command line. Outlives the session.
class FrontEnd : public Activity::KeyringWaiter {
public:
    /// New objects of the classes that modules ask for: IDialog, IProgressIndicator with IProgress,
    /// IFileSelector. Empty where there is none; a module that would ask the user gives up at once then.
    virtual Ref<IObject> makeDialog(HostSession& session) = 0;
    virtual Ref<IObject> makeProgress(HostSession& session) = 0;
    virtual Ref<IObject> makeFileSelector(HostSession&) { return {}; }

    /// Shows the URL that a browser is started for. True when the user can reach it without that browser.
    virtual bool announceBrowser(std::string_view /*url*/) { return false; }

    /// The web browser that was to show a page has failed; comes from the event loop.
    virtual void browserFailed(const std::string& /*url*/, const std::string& /*reason*/) {}

    /// With no more input than to give it up.
    bool keyringWaits(bool /*isForUser*/) override { return true; }
    void keyringAnswered() override {}

    /// The browser came back, and the modules were told.
    virtual void callbackCame() {}

protected:
    ~FrontEnd() = default;
};

} // namespace xbr::host
