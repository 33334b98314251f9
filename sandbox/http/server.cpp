#include "sandbox/http/server.h"

#include "sandbox/http/connection.h"
#include "sandbox/http/visit.h"

#include <limits>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace sandbox {
namespace {

// A connection occupies a thread while it is open, and faults keep some open for long.
constexpr std::size_t kThreads = 32;

// The library calls a request's handlers on the thread that serves its connection but does not tell them
// which connection that is.
thread_local Visit* t_visit = nullptr;

// Not SO_REUSEPORT, which the library sets by default: two servers on one port would share the requests.
void setSocketOptions(int socket) {
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
}

} // namespace

Server::Server(sandbox::Handler handler)
    : m_handler(std::move(handler)),
      m_stopEvent(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (m_stopEvent < 0) {
        throw std::system_error(errno, std::generic_category(), "cannot create an event");
    }
    const httplib::Server::Handler plain = [this](const httplib::Request&, httplib::Response& r) {
        respond(nullptr, r);
    };
    const HandlerWithContentReader reading = [this](const httplib::Request&, httplib::Response& r,
                                                    const httplib::ContentReader& reader) {
        respond(&reader, r);
    };
    Get("/", plain).Options("/", plain).Delete("/", plain).Delete("/", reading);
    Post("/", reading).Put("/", reading).Patch("/", reading);
    set_payload_max_length(std::numeric_limits<std::size_t>::max());
    set_socket_options(setSocketOptions);
    new_task_queue = [] { return new httplib::ThreadPool(kThreads); };
}

Server::~Server() {
    ::close(m_stopEvent);
}

int Server::open(int port) {
    if (port == 0) {
        return bind_to_any_port("127.0.0.1");
    }
    return bind_to_port("127.0.0.1", port) ? port : -1;
}

void Server::run() {
    listen_after_bind();
}

void Server::stop() {
    // The library forgets a stop that comes before it listens.
    while (!is_running()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ::eventfd_write(m_stopEvent, 1);
    httplib::Server::stop();
}

bool Server::process_and_close_socket(int socket) {
    Connection connection(socket, m_stopEvent);
    bool alive = true;
    while (alive && connection.awaitRequest()) {
        Visit visit(connection);
        t_visit = &visit;
        bool closed = false;
        alive = process_request(connection, false, closed,
                                [&](httplib::Request& request) { visit.begin(request); });
        alive = alive && !closed && visit.isReusable();
        t_visit = nullptr;
    }
    connection.closeGently();
    return alive;
}

void Server::respond(const httplib::ContentReader* reader, httplib::Response& response) {
    auto& visit = *t_visit;
    const auto fault = visit.bodyFault();
    if (!fault.empty()) {
        visit.deliver(textReply(400, "Bad request: " + fault + "\n"), response);
        return;
    }
    visit.attach(reader);
    visit.deliver(m_handler(visit), response);
}

} // namespace sandbox
