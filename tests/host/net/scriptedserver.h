#pragma once

#include <arpa/inet.h>
#include <atomic>
#include <csignal>
#include <functional>
#include <netinet/in.h>
#include <openssl/ssl.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace xbr::host::test {

/// The server's end of one connection. Its calls block, and throw when the server is taken down.
class Peer {
public:
    struct Stopped {};

    Peer(int socket, int stop, SSL_CTX* tls) : m_socket(socket), m_stop(stop) {
        if (tls) {
            m_tls = SSL_new(tls);
            SSL_set_fd(m_tls, socket);
            // A client that does not trust us ends the handshake; the script then reads the end at once.
            SSL_accept(m_tls);
        }
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer() {
        if (m_tls && m_socket >= 0) {
            SSL_shutdown(m_tls);
        }
        SSL_free(m_tls);
        if (m_socket >= 0) {
            ::close(m_socket);
        }
    }

    /// Everything up to the blank line after the headers, with it; empty when the client has closed.
    std::string readHead() {
        static constexpr std::string_view kEnd = "\r\n\r\n";
        while (m_ahead.find(kEnd) == std::string::npos) {
            if (!receive()) {
                return {};
            }
        }
        return read(m_ahead.find(kEnd) + kEnd.size());
    }

    /// Up to `size` bytes; fewer when the client has closed.
    std::string read(std::size_t size) {
        while (m_ahead.size() < size && receive()) {
        }
        std::string bytes = m_ahead.substr(0, size);
        m_ahead.erase(0, bytes.size());
        return bytes;
    }
    void waitForClose() { read(std::string::npos); }

    /// False when the client no longer takes bytes.
    bool send(std::string_view bytes) {
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

    /// Closes with a reset instead of an orderly end.
    void reset() {
        const linger now = {1, 0};
        ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &now, sizeof(now));
        ::close(std::exchange(m_socket, -1));
    }

    void sleep(int milliseconds) const {
        pollfd watched = {m_stop, POLLIN, 0};
        if (::poll(&watched, 1, milliseconds) > 0) {
            throw Stopped{};
        }
    }

private:
    void waitFor(short events) const {
        pollfd watched[] = {{m_socket, events, 0}, {m_stop, POLLIN, 0}};
        const bool isReady = m_tls && SSL_pending(m_tls) > 0;
        if (!isReady && (::poll(watched, 2, 30'000) <= 0 || watched[0].revents == 0)) {
            throw Stopped{};
        }
    }
    bool receive() {
        char buffer[65536];
        waitFor(POLLIN);
        const long count =
            m_tls ? SSL_read(m_tls, buffer, sizeof(buffer)) : ::recv(m_socket, buffer, sizeof(buffer), 0);
        m_ahead.append(buffer, count > 0 ? static_cast<std::size_t>(count) : 0);
        return count > 0;
    }

    int m_socket;
    int m_stop;
    SSL* m_tls = nullptr;
    std::string m_ahead;
};

using Script = std::function<void(Peer&)>;

/// A server on the loopback that does with each connection what a script says, byte by byte: the first
/// connection gets the first script and so on, all further ones the last. With `tls`, which it frees, for
/// those who trust it.
class ScriptedServer {
public:
    explicit ScriptedServer(Script script, SSL_CTX* tls = nullptr)
        : ScriptedServer(std::vector<Script>{std::move(script)}, tls) {}
    explicit ScriptedServer(std::vector<Script> scripts, SSL_CTX* tls = nullptr)
        : m_scripts(std::move(scripts)),
          m_tls(tls) {
        // Small, so that a script that does not read is felt by the client.
        const int window = 65536;
        ::setsockopt(m_listener, SOL_SOCKET, SO_RCVBUF, &window, sizeof(window));
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(m_address);
        auto* generic = reinterpret_cast<sockaddr*>(&m_address);
        if (::bind(m_listener, generic, length) != 0 || ::listen(m_listener, 16) != 0 ||
            ::getsockname(m_listener, generic, &length) != 0) {
            throw std::runtime_error("no port on the loopback");
        }
        m_acceptor = std::thread([this] { acceptAll(); });
    }
    ~ScriptedServer() {
        ::eventfd_write(m_stop, 1);
        m_acceptor.join();
        for (std::thread& worker : m_workers) {
            worker.join();
        }
        ::close(m_listener);
        ::close(m_stop);
        SSL_CTX_free(m_tls);
    }

    std::string url(std::string_view path = "/", std::string_view protocol = "http") const {
        return std::string(protocol) + (m_tls ? "s" : "") +
               "://127.0.0.1:" + std::to_string(ntohs(m_address.sin_port)) + std::string(path);
    }
    int connections() const { return m_connections; }

private:
    void acceptAll() {
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
    void serve(int socket, const Script& script) const {
        // In this thread only: OpenSSL writes to closed connections here, and the client's thread is to show
        // whether the same happens there.
        sigset_t pipe;
        ::sigemptyset(&pipe);
        ::sigaddset(&pipe, SIGPIPE);
        ::pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
        try {
            Peer peer(socket, m_stop, m_tls);
            script(peer);
        } catch (const Peer::Stopped&) {
            // The test is over; the connection is closed by now.
        }
    }

    std::vector<Script> m_scripts;
    SSL_CTX* m_tls;
    int m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int m_stop = ::eventfd(0, EFD_CLOEXEC);
    sockaddr_in m_address{};
    std::atomic<int> m_connections = 0;
    std::vector<std::thread> m_workers;
    std::thread m_acceptor;
};

/// A script that reads the headers, answers with these bytes, and may do something more.
inline Script answering(std::string bytes, Script then = {}) {
    return [bytes = std::move(bytes), then = std::move(then)](Peer& peer) {
        peer.readHead();
        peer.send(bytes);
        if (then) {
            then(peer);
        }
    };
}

/// A complete answer with a body.
inline std::string answer(int status, std::string_view body, std::string_view headers = {}) {
    return "HTTP/1.1 " + std::to_string(status) + " Text\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\n" + std::string(headers) + "\r\n" + std::string(body);
}

} // namespace xbr::host::test
