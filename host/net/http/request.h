#pragma once

#include "framework/abi/stream.h"
#include "framework/support/objects/ref.h"

#include <curl/curl.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace xbr::host {

/// True when `text` is a token (RFC 9110, section 5.6.2): the name of a header or of a method.
bool isToken(std::string_view text) noexcept;

/// True when both are the same header's name, whatever their case.
bool isSameHeader(std::string_view left, std::string_view right) noexcept;

/// True for the headers that frame the message or steer the connection (RFC 9112, sections 6 and 9). They are
/// the transport's: a second opinion about the length of a body lets two requests be read out of one.
bool isTransportHeader(std::string_view name) noexcept;

/// The headers of one request as libcurl takes them.
class RequestHeaders {
public:
    RequestHeaders() = default;
    RequestHeaders(const RequestHeaders&) = delete;
    RequestHeaders& operator=(const RequestHeaders&) = delete;
    RequestHeaders(RequestHeaders&& other) noexcept;
    RequestHeaders& operator=(RequestHeaders&&) = delete;

    ~RequestHeaders() { curl_slist_free_all(m_list); }

    void add(std::string_view name, std::string_view value);

    /// Keeps libcurl from adding a header of that name of its own.
    void suppress(std::string_view name);

    curl_slist* list() const noexcept { return m_list; }

private:
    void append(const std::string& line);

    curl_slist* m_list = nullptr;
};

/// What a request sends: the bytes of a stream from the position where it stands to its end. The length is
/// fixed when the body is opened; bytes that are appended later are not sent.
class RequestBody {
public:
    RequestBody() = default;

    /// Measures the stream (null: no body) and keeps it. False when it cannot be measured.
    bool open(IStream* stream);

    bool exists() const noexcept { return static_cast<bool>(m_stream); }
    std::int64_t size() const noexcept { return m_size; }

    /// Reads the next bytes. False when fewer than announced can be read.
    bool read(char* buffer, std::size_t size, std::size_t& done);

    /// How many bytes were read.
    std::int64_t position() const noexcept { return m_read; }

    /// Goes back to `offset` from the start of the body, to send it from there again.
    bool rewindTo(std::int64_t offset);

private:
    Ref<IStream> m_stream;
    std::int64_t m_start = 0;
    std::int64_t m_size = 0;
    std::int64_t m_read = 0;
};

/// What is sent.
struct Request {
    std::string method;
    std::string url;
    std::string host;
    RequestHeaders headers;
    RequestBody body;

    /// For documents that anybody may see: the protocols to which redirects are followed, as libcurl lists
    /// them. Such a request also ends when the answer comes slowly. Null for all others.
    const char* redirects = nullptr;
};

} // namespace xbr::host
