#pragma once

#include "framework/abi/system.h"
#include "framework/support/objects/object.h"
#include "host/system/hostsystem.h"

namespace xbr::host {

class SystemShell final : public Object<ISystemShell> {
public:
    static SystemShell& instance() noexcept;

    Result openUrl(Text url) noexcept override;

    void setAnnouncer(BrowserAnnouncer announcer) { m_announcer = std::move(announcer); }

private:
    BrowserAnnouncer m_announcer;
};

} // namespace xbr::host
