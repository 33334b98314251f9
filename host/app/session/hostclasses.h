#pragma once

#include "framework/support/parts/classfactory.h"
#include "host/app/settings/configurationstore.h"

#include <memory>

namespace xbr::host {

class Activity;
class FrontEnd;
class HostSession;

/// The classes that the program offers to modules: settings and tags of its own, dialogs of its front end.
/// They are with the plug-in manager as long as this object lives, and components of forms get what the
/// configuration file says for them.
class HostClasses {
public:
    HostClasses(FrontEnd& front, HostSession& session, Activity& activity,
                const std::shared_ptr<ConfigurationReport>& report);
    HostClasses(const HostClasses&) = delete;
    HostClasses& operator=(const HostClasses&) = delete;
    ~HostClasses();

private:
    Ref<ClassFactory> m_classes;
};

} // namespace xbr::host
