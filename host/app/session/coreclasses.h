#pragma once

#include "framework/support/parts/classfactory.h"
#include "host/app/settings/configurationstore.h"

#include <memory>

namespace xbr::host {

/// The classes that the program offers whatever its front end is: IConfigurationStore and IMediaFileInfo.
/// They are with the plug-in manager as long as this object lives, and components of forms get what the
/// configuration file says for them.
class CoreClasses {
public:
    explicit CoreClasses(const std::shared_ptr<ConfigurationReport>& report);
    CoreClasses(const CoreClasses&) = delete;
    CoreClasses& operator=(const CoreClasses&) = delete;
    ~CoreClasses();

private:
    Ref<ClassFactory> m_classes;
};

} // namespace xbr::host
