#pragma once

#include <httplib.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <sys/types.h>

namespace sandbox {

// One accepted socket, as the HTTP library reads and writes it. Unlike the library's own stream it can be
// waited on while the server stops, can be reset, and does not lose an early reply to unread data. Owns the
// socket.
class Connection : public httplib::Stream {
public:
    // `stopEvent` is a descriptor that becomes readable when the server is to stop.
    Connection(int socket, int stopEvent);
    ~Connection() override;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Waits for a request to begin; false when the peer has gone, kept silent too long or the server stops.
    bool awaitRequest();
    // From here on the request's body is read, which may be long.
    void headDone() { m_inHead = false; }
    // Waits; false when the server stops meanwhile.
    bool pause(std::chrono::milliseconds time) const;

    // Drops the connection with a TCP reset; nothing more is read or written.
    void reset();
    bool isReset() const { return m_isReset; }
    // Closes in a way that lets the peer read the reply even though it may still be sending.
    void closeGently();

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* target, size_t size) override;
    ssize_t write(const char* bytes, size_t size) override;
    void get_remote_ip_and_port(std::string& address, int& port) const override;
    void get_local_ip_and_port(std::string& address, int& port) const override;
    int socket() const override { return m_socket; }

private:
    bool await(short events, std::chrono::milliseconds time) const;
    ssize_t fill();

    int m_socket;
    int m_stopEvent;
    std::array<char, 1U << 16U> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_headBytes = 0;
    bool m_inHead = true;
    bool m_isReset = false;
};

} // namespace sandbox
