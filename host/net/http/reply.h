#pragma once

#include "framework/support/data/memorystream.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace xbr::host {

/// What is read of the headers of an answer.
class ReplyHeaders {
public:
    enum Name { kCacheControl, kContentType, kEntityTag, kLastModified, kRetryAfter, kNames };

    /// Takes one line of the headers; a status line begins a new answer.
    void addLine(std::string_view line);

    /// The value without white space around it; those of a header that repeats are joined by commas, as they
    /// mean the same then (RFC 9110, section 5.3). Empty when there is none.
    const std::string& operator[](Name name) const { return m_values.at(name); }

    /// How many seconds the server asks to wait (RFC 9110, section 10.2.3); -1 for nothing that makes sense.
    std::int64_t secondsToWait() const;

private:
    std::array<std::string, kNames> m_values;
};

/// The answer of a server while it arrives.
class Reply {
public:
    /// Answers are token records, account data and news: thousands of bytes.
    static constexpr std::uint64_t kBodyLimit = std::uint64_t{8} << 20U;

    /// For all headers, those of interim answers included.
    static constexpr std::uint64_t kHeaderLimit = std::uint64_t{256} << 10U;

    /// Takes one line of the headers; false when the answer is over the limit.
    bool addHeaderLine(std::string_view line);

    /// Takes a piece of the body; false when the answer is over the limit.
    bool addBody(std::string_view bytes);

    /// All bytes that came.
    std::uint64_t received() const noexcept { return m_headerBytes + m_bodyBytes; }

    /// True when the headers of the last answer have arrived to their end. libcurl takes headers that were
    /// cut short for whole ones.
    bool hasHeaders() const noexcept { return m_headersEnded; }

    /// True when a body of this length has arrived.
    bool hasBodyOf(std::int64_t length) const noexcept;

    /// The headers of the last answer.
    const ReplyHeaders& headers() const noexcept { return m_headers; }

    /// The body at its start; null when it is empty.
    Ref<MemoryStream> body() const;

private:
    ReplyHeaders m_headers;
    Ref<MemoryStream> m_body;
    std::uint64_t m_headerBytes = 0;
    std::uint64_t m_bodyBytes = 0;
    bool m_headersEnded = false;
};

/// What an answer in JSON says to people under "errors" or "message", in one line of 200 characters at most;
/// empty when it says nothing.
std::string wordsOf(MemoryStream& body);

} // namespace xbr::host
