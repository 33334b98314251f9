#pragma once

#include "sandbox/http/exchange.h"

#include <httplib.h>

#include <string>

namespace sandbox {

class Visit;

// The network side: accepts connections on the loopback address and hands every request to one handler,
// whatever its method and path, with its body unread and untouched.
class Server : private httplib::Server {
public:
    // The handler is called from several threads. Throws std::system_error.
    explicit Server(sandbox::Handler handler);
    ~Server() override;
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    // Takes the port (0: a free one) of 127.0.0.1; returns it, or -1 when it is not to be had. From here on
    // connections queue up.
    int open(int port);
    // Serves until stop(); blocks.
    void run();
    // Ends run() from another thread; requests in progress are given up.
    void stop();

private:
    bool process_and_close_socket(int socket) override;
    void respond(const httplib::ContentReader* reader, httplib::Response& response);

    sandbox::Handler m_handler;
    int m_stopEvent;
};

} // namespace sandbox
