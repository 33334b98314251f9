#pragma once

#include "framework/abi/system.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <string_view>

namespace xbr::host {

/// Is told the URL before a browser is started for it, so that a front end can show it. Answers true when the
/// user can reach the URL without that browser; opening it is a success then in any case.
using BrowserAnnouncer = std::function<bool(std::string_view url)>;

class SystemShell final : public Object<ISystemShell> {
public:
    static SystemShell& instance() noexcept;

    Result openUrl(Text url) noexcept override;

    void setAnnouncer(BrowserAnnouncer announcer) { m_announcer = std::move(announcer); }

private:
    BrowserAnnouncer m_announcer;
};

} // namespace xbr::host
