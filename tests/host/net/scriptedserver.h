#pragma once

#include "tests/host/net/tlsidentity.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace xbr::host::test {

/// The server's end of one connection. Its calls block, and throw when the server is taken down.
class Peer {
public:
    Peer(int socket, int stop, ssl_ctx_st* tls);
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer();

    /// Everything up to the blank line after the headers, with it; empty when the client has closed.
    std::string readHead();

    /// Up to `size` bytes; fewer when the client has closed.
    std::string read(std::size_t size);
    void discard(std::size_t size);

    /// False when the client no longer takes bytes.
    bool send(std::string_view bytes);

    /// Closes with a reset instead of an orderly end.
    void reset();

    /// Waits until the client has closed.
    void waitForClose();
    void sleep(int milliseconds) const;

private:
    void waitFor(short events) const;
    long receive(char* buffer, std::size_t size);

    int m_socket;
    int m_stop;
    ssl_st* m_tls = nullptr;
    std::string m_ahead;
};

using Script = std::function<void(Peer&)>;

/// A server on the loopback that does with each connection what a script says, byte by byte: the first
/// connection gets the first script and so on, all further ones the last.
class ScriptedServer {
public:
    explicit ScriptedServer(Script script, const TlsIdentity* tls = nullptr);
    explicit ScriptedServer(std::vector<Script> scripts, const TlsIdentity* tls = nullptr);
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;
    ~ScriptedServer();

    std::uint16_t port() const { return m_port; }
    std::string url(std::string_view path = "/") const;
    int connections() const { return m_connections; }

private:
    void listen();
    void acceptAll();
    void serve(int socket, const Script& script);

    std::vector<Script> m_scripts;
    ssl_ctx_st* m_tls = nullptr;
    int m_listener = -1;
    int m_stop = -1;
    std::uint16_t m_port = 0;
    std::atomic<int> m_connections = 0;
    std::vector<std::thread> m_workers;
    std::thread m_acceptor;
};

/// A script that reads the headers and answers with these bytes.
Script answering(std::string bytes);

/// A complete answer with a body.
std::string answer(int status, std::string_view body, std::string_view headers = {});

} // namespace xbr::host::test
