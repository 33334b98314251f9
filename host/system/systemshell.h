#pragma once

#include "framework/abi/system.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QProcess;
class QString;

namespace xbr::host {

/// Is told the URL before a browser is started for it, so that a front end can show it. Answers true when the
/// user can reach the URL without that browser; opening it is a success then in any case.
using BrowserAnnouncer = std::function<bool(std::string_view url)>;

/// Hears, from the event loop, why a browser that was started for a URL has failed.
using BrowserProblemListener = std::function<void(const std::string& url, const std::string& reason)>;

class SystemShell final : public Object<ISystemShell> {
public:
    static SystemShell& instance() noexcept;

    Result openUrl(Text url) noexcept override;

    void setAnnouncer(BrowserAnnouncer announcer) { m_announcer = std::move(announcer); }

    void setProblemListener(BrowserProblemListener listener) { m_problemListener = std::move(listener); }

private:
    bool startBrowser(const QString& url);
    void forget(QProcess* browser, const std::string& problem);

    BrowserAnnouncer m_announcer;
    BrowserProblemListener m_problemListener;
    std::vector<QProcess*> m_browsers; ///< that still run; left to themselves when the program ends
};

} // namespace xbr::host
