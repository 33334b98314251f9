#include "tests/host/net/scriptedserver.h"

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <openssl/ssl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace xbr::host::test {

namespace {

struct Stopped {};

} // namespace

Peer::Peer(int socket, int stop, ssl_ctx_st* tls) : m_socket(socket), m_stop(stop) {
    if (tls) {
        m_tls = SSL_new(tls);
        SSL_set_fd(m_tls, socket);
        // A client that does not trust us ends the handshake; the script then reads the end at once.
        SSL_accept(m_tls);
    }
}

Peer::~Peer() {
    if (m_tls) {
        if (m_socket >= 0) {
            SSL_shutdown(m_tls);
        }
        SSL_free(m_tls);
    }
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

void Peer::waitFor(short events) const {
    if (m_tls && SSL_pending(m_tls) > 0) {
        return;
    }
    pollfd watched[] = {{m_socket, events, 0}, {m_stop, POLLIN, 0}};
    ::poll(watched, 2, 30'000);
    if (watched[0].revents == 0) {
        throw Stopped{};
    }
}

long Peer::receive(char* buffer, std::size_t size) {
    waitFor(POLLIN);
    return m_tls ? SSL_read(m_tls, buffer, static_cast<int>(size)) : ::recv(m_socket, buffer, size, 0);
}

std::string Peer::read(std::size_t size) {
    std::string bytes = m_ahead.substr(0, size);
    m_ahead.erase(0, bytes.size());
    std::vector<char> buffer(65536);
    while (bytes.size() < size) {
        const long count = receive(buffer.data(), std::min(buffer.size(), size - bytes.size()));
        if (count <= 0) {
            break;
        }
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return bytes;
}

void Peer::discard(std::size_t size) {
    while (size > 0) {
        const auto piece = read(std::min<std::size_t>(size, 1U << 20U)).size();
        if (piece == 0) {
            return;
        }
        size -= piece;
    }
}

std::string Peer::readHead() {
    std::vector<char> buffer(65536);
    std::size_t end = std::string::npos;
    while ((end = m_ahead.find("\r\n\r\n")) == std::string::npos) {
        const long count = receive(buffer.data(), buffer.size());
        if (count <= 0) {
            return {};
        }
        m_ahead.append(buffer.data(), static_cast<std::size_t>(count));
    }
    std::string head = m_ahead.substr(0, end + 4);
    m_ahead.erase(0, end + 4);
    return head;
}

bool Peer::send(std::string_view bytes) {
    while (!bytes.empty()) {
        waitFor(POLLOUT);
        const long count = m_tls ? SSL_write(m_tls, bytes.data(), static_cast<int>(bytes.size()))
                                 : ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

void Peer::reset() {
    const linger now = {1, 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &now, sizeof(now));
    ::close(m_socket);
    m_socket = -1;
}

void Peer::waitForClose() {
    while (!read(65536).empty()) {
    }
}

void Peer::sleep(int milliseconds) const {
    pollfd watched = {m_stop, POLLIN, 0};
    if (::poll(&watched, 1, milliseconds) > 0) {
        throw Stopped{};
    }
}

ScriptedServer::ScriptedServer(Script script, const TlsIdentity* tls)
    : ScriptedServer(std::vector<Script>{std::move(script)}, tls) {}

ScriptedServer::ScriptedServer(std::vector<Script> scripts, const TlsIdentity* tls)
    : m_scripts(std::move(scripts)),
      m_tls(tls ? tls->serverContext() : nullptr) {
    listen();
    m_acceptor = std::thread([this] { acceptAll(); });
}

ScriptedServer::~ScriptedServer() {
    ::eventfd_write(m_stop, 1);
    m_acceptor.join();
    for (std::thread& worker : m_workers) {
        worker.join();
    }
    ::close(m_listener);
    ::close(m_stop);
    SSL_CTX_free(m_tls);
}

void ScriptedServer::listen() {
    m_stop = ::eventfd(0, EFD_CLOEXEC);
    m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // Small, so that a script that does not read is felt by the client.
    const int window = 65536;
    ::setsockopt(m_listener, SOL_SOCKET, SO_RCVBUF, &window, sizeof(window));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof(address);
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (::bind(m_listener, generic, length) != 0 || ::listen(m_listener, 16) != 0 ||
        ::getsockname(m_listener, generic, &length) != 0) {
        throw std::runtime_error("no port on the loopback");
    }
    m_port = ntohs(address.sin_port);
}

void ScriptedServer::acceptAll() {
    for (;;) {
        pollfd watched[] = {{m_listener, POLLIN, 0}, {m_stop, POLLIN, 0}};
        ::poll(watched, 2, -1);
        if (watched[1].revents != 0) {
            return;
        }
        const int socket = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        const auto index = std::min(static_cast<std::size_t>(m_connections++), m_scripts.size() - 1);
        m_workers.emplace_back([this, socket, index] { serve(socket, m_scripts[index]); });
    }
}

void ScriptedServer::serve(int socket, const Script& script) {
    // In this thread only: OpenSSL writes to closed connections here, and the client's thread is to show
    // whether the same happens there.
    sigset_t pipe;
    ::sigemptyset(&pipe);
    ::sigaddset(&pipe, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
    try {
        Peer peer(socket, m_stop, m_tls);
        script(peer);
    } catch (const Stopped&) {
        // The test is over; the connection is closed by now.
    }
}

std::string ScriptedServer::url(std::string_view path) const {
    return (m_tls ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(m_port) + std::string(path);
}

Script answering(std::string bytes) {
    return [bytes = std::move(bytes)](Peer& peer) {
        peer.readHead();
        peer.send(bytes);
    };
}

std::string answer(int status, std::string_view body, std::string_view headers) {
    return "HTTP/1.1 " + std::to_string(status) + " Text\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\n" + std::string(headers) + "\r\n" + std::string(body);
}

} // namespace xbr::host::test
