#pragma once

#include "host/base/problem.h"

#include <QLocalServer>
#include <QObject>

#include <cstdint>
#include <optional>
#include <string>

namespace xbr::host {

/// Takes URLs from `xbrhost open-url`, which the desktop starts for a callback of the browser, and offers
/// them to the file-type registry. Every running host listens on a socket of its own in the callback folder;
/// only the same user reaches it.
///
/// Main thread.
class CallbackServer {
public:
    /// What the server asks of the rest of the program.
    struct Host {
        /// When a browser was opened whose answer is waited for, on the clock that all processes share; none:
        /// nobody waits for one.
        virtual std::optional<std::int64_t> waitsForBrowserSince() = 0;

        /// True while modules may not be called: what comes has to wait.
        virtual bool isHeld() = 0;

        /// A URL was offered to the modules, whatever they did with it.
        virtual void urlCame() = 0;

    protected:
        ~Host() = default;
    };

    static constexpr int kMaximumConnections = 16; ///< further ones are closed at once
    static constexpr int kTimeLimit = 2000;        ///< milliseconds for a whole connection

    explicit CallbackServer(Host& host);
    CallbackServer(const CallbackServer&) = delete;
    CallbackServer& operator=(const CallbackServer&) = delete;
    ~CallbackServer();

    /// Begins to listen. The words of a problem are a whole line.
    Outcome<void> start();

    /// Offers a URL to the modules; true when one took it.
    bool openUrl(const std::string& url);

private:
    Outcome<void> listen();
    void accept();

    Host* m_host;
    QLocalServer m_server;
    QObject m_connections; ///< parent of the connections
    std::string m_folder;
};

} // namespace xbr::host
