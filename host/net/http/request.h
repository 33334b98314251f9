#pragma once

#include <curl/curl.h>

#include <string_view>

namespace xbr::host {

/// True when `text` is a token (RFC 9110, section 5.6.2): the name of a header or of a method.
bool isToken(std::string_view text) noexcept;

/// True when `text` has a byte below blank or DEL: line breaks above all, which would begin a header of their
/// own.
bool hasControlCharacter(std::string_view text) noexcept;

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

    /// Overwrites the lines before it frees them: one of them may hold a token.
    ~RequestHeaders();

    void add(std::string_view name, std::string_view value);

    /// Keeps libcurl from adding a header of that name of its own.
    void suppress(std::string_view name);

    curl_slist* list() const noexcept { return m_list; }

private:
    void append(std::string line);

    curl_slist* m_list = nullptr;
};

} // namespace xbr::host
