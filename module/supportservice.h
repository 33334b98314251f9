#pragma once

#include "framework/abi/module.h"
#include "framework/support/objects/object.h"
#include "framework/support/parts/classfactory.h"

namespace brindlex {

/// The service that the host creates after loading the module: offers the module's other classes and takes
/// the callback URLs of the sign-in.
class SupportService final : public xbr::Object<xbr::IProgramService> {
public:
    /// Creates and destroys with the callback handler unregistered, whether or not the host called terminate.
    ~SupportService() override;

    xbr::Result initialise(xbr::IHostContext* context) noexcept override;
    xbr::Result getClasses(xbr::IClassFactory** out) noexcept override;
    xbr::Result terminate() noexcept override;

private:
    xbr::Ref<xbr::IHostContext> m_context;
    xbr::Ref<xbr::ClassFactory> m_classes;
};

} // namespace brindlex
