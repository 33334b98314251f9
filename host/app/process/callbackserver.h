#pragma once

#include "host/base/problem.h"

#include <QLocalServer>
#include <QObject>

#include <functional>
#include <string>

namespace xbr::host {

/// Takes URLs from `xbrhost open-url`, which the desktop starts for a callback of the browser, and offers
/// them to the file-type registry. Every running host listens on a socket of its own in the callback folder;
/// only the same user reaches it.
///
/// One connection carries one line with the URL, and is answered "ok" when a module took it, otherwise "no".
/// Main thread.
class CallbackServer {
public:
    static constexpr int kMaximumConnections = 16; ///< further ones are closed at once
    static constexpr int kTimeLimit = 2000;        ///< milliseconds for a whole connection

    CallbackServer();
    CallbackServer(const CallbackServer&) = delete;
    CallbackServer& operator=(const CallbackServer&) = delete;
    ~CallbackServer();

    /// Begins to listen. The words of a problem are a whole line.
    Outcome<void> start();

    /// Is told after a URL was offered to the modules, whatever they did with it. An empty function ends it.
    void setUrlListener(std::function<void()> listener) { m_listener = std::move(listener); }

    /// Offers a URL to the modules; true when one took it.
    bool openUrl(const std::string& url);

private:
    Outcome<void> listen();
    void accept();

    QLocalServer m_server;
    QObject m_connections; ///< parent of the connections
    std::string m_folder;
    std::function<void()> m_listener;
};

} // namespace xbr::host
