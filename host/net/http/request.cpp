#include "host/net/http/request.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <string>
#include <utility>

namespace xbr::host {

namespace {

bool isTokenCharacter(char c) noexcept {
    const bool alphanumeric = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return alphanumeric || (c != '\0' && std::strchr("!#$%&'*+-.^_`|~", c) != nullptr);
}

} // namespace

bool isToken(std::string_view text) noexcept {
    return !text.empty() && std::all_of(text.begin(), text.end(), isTokenCharacter);
}

bool isSameHeader(std::string_view left, std::string_view right) noexcept {
    return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

bool isTransportHeader(std::string_view name) noexcept {
    static constexpr std::array<std::string_view, 9> kNames = {
        "Connection", "Content-Length", "Expect",           "Host", "Keep-Alive", "TE",
        "Trailer",    "Upgrade",        "Transfer-Encoding"};
    return std::any_of(kNames.begin(), kNames.end(),
                       [name](std::string_view known) { return isSameHeader(name, known); });
}

RequestHeaders::RequestHeaders(RequestHeaders&& other) noexcept
    : m_list(std::exchange(other.m_list, nullptr)) {}

void RequestHeaders::append(const std::string& line) {
    curl_slist* longer = curl_slist_append(m_list, line.c_str());
    if (!longer) {
        throw std::bad_alloc();
    }
    m_list = longer;
}

void RequestHeaders::add(std::string_view name, std::string_view value) {
    // "Name;" is how libcurl writes a header without a value; "Name:" would remove it.
    append(std::string(name) + (value.empty() ? ";" : ": ") + std::string(value));
}

void RequestHeaders::suppress(std::string_view name) {
    append(std::string(name) + ":");
}

bool RequestBody::open(IStream* stream) {
    *this = RequestBody();
    if (!stream) {
        return true;
    }
    std::int64_t end = 0;
    if (stream->seek(0, SeekOrigin::kCurrent, &m_start) != kOk ||
        stream->seek(0, SeekOrigin::kEnd, &end) != kOk ||
        stream->seek(m_start, SeekOrigin::kStart, nullptr) != kOk) {
        return false;
    }
    m_stream = Ref<IStream>::share(stream);
    m_size = std::max<std::int64_t>(end - m_start, 0);
    return true;
}

bool RequestBody::read(char* buffer, std::size_t size, std::size_t& done) {
    const auto wanted = std::min<std::uint64_t>(size, static_cast<std::uint64_t>(m_size - m_read));
    done = 0;
    if (wanted == 0) {
        return true;
    }
    std::uint64_t count = 0;
    // A short read means that the stream has shrunk since it was measured; the announced length cannot be
    // kept.
    if (m_stream->read(buffer, wanted, &count) != kOk || count != wanted) {
        return false;
    }
    m_read += static_cast<std::int64_t>(count);
    done = static_cast<std::size_t>(count);
    return true;
}

bool RequestBody::rewindTo(std::int64_t offset) {
    if (!m_stream || offset < 0 || offset > m_size ||
        m_stream->seek(m_start + offset, SeekOrigin::kStart, nullptr) != kOk) {
        return false;
    }
    m_read = offset;
    return true;
}

} // namespace xbr::host
