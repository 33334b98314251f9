#include "sandbox/http/connection.h"

#include <algorithm>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace sandbox {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kIdleTime{15'000};
constexpr milliseconds kPeerPatience{30'000}; // for a peer in the middle of something
constexpr milliseconds kLingerTime{2'000};
constexpr std::size_t kLongestHead = 64U << 10U;

} // namespace

Connection::Connection(int socket, int stopEvent) : m_socket(socket), m_stopEvent(stopEvent) {}

Connection::~Connection() {
    ::close(m_socket);
}

// True when the socket is ready; false on time-out and when the server stops.
bool Connection::await(short events, milliseconds time) const {
    std::array<pollfd, 2> wanted{{{m_socket, events, 0}, {m_stopEvent, POLLIN, 0}}};
    const int count = ::poll(wanted.data(), wanted.size(), static_cast<int>(time.count()));
    return count > 0 && wanted[1].revents == 0;
}

bool Connection::awaitRequest() {
    m_inHead = true;
    m_headBytes = 0;
    return m_begin < m_end || (await(POLLIN, kIdleTime) && fill() > 0);
}

bool Connection::pause(milliseconds time) const {
    pollfd stop{m_stopEvent, POLLIN, 0};
    return time.count() <= 0 || ::poll(&stop, 1, static_cast<int>(time.count())) == 0;
}

void Connection::reset() {
    const linger atOnce{1, 0}; // closing then discards and resets
    ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof(atOnce));
    m_isReset = true;
}

// A close with unread data would make the system send a reset, which may overtake the reply.
void Connection::closeGently() {
    if (m_isReset || ::shutdown(m_socket, SHUT_WR) != 0) {
        return;
    }
    const auto end = Clock::now() + kLingerTime;
    m_inHead = false;
    do {
        m_begin = m_end = 0;
    } while (Clock::now() < end && await(POLLIN, kLingerTime) && fill() > 0);
}

bool Connection::is_readable() const {
    return !m_isReset && (m_begin < m_end || await(POLLIN, kPeerPatience));
}

bool Connection::is_writable() const {
    return !m_isReset && await(POLLOUT, kPeerPatience);
}

ssize_t Connection::fill() {
    m_begin = m_end = 0;
    const auto count = ::recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
    m_end = count > 0 ? static_cast<std::size_t>(count) : 0;
    return count;
}

ssize_t Connection::read(char* target, size_t size) {
    if (!is_readable()) {
        return -1;
    }
    if (m_begin == m_end) {
        const auto count = fill();
        if (count <= 0) {
            return count;
        }
    }
    const auto taken = std::min(size, m_end - m_begin);
    if (m_inHead) {
        m_headBytes += taken;
        if (m_headBytes > kLongestHead) {
            return -1;
        }
    }
    std::memcpy(target, m_buffer.data() + m_begin, taken);
    m_begin += taken;
    return static_cast<ssize_t>(taken);
}

// Writes all or fails: the library does not come back for a rest.
ssize_t Connection::write(const char* bytes, size_t size) {
    std::size_t written = 0;
    while (written < size) {
        if (!is_writable()) {
            return -1;
        }
        const auto count = ::send(m_socket, bytes + written, size - written, MSG_NOSIGNAL);
        if (count < 0) {
            return -1;
        }
        written += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(size);
}

// Everybody is local here.
void Connection::get_remote_ip_and_port(std::string& address, int& port) const {
    address = "127.0.0.1";
    port = 0;
}

void Connection::get_local_ip_and_port(std::string& address, int& port) const {
    get_remote_ip_and_port(address, port);
}

} // namespace sandbox
