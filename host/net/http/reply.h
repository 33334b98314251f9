#pragma once

#include "framework/support/data/memorystream.h"
#include "host/net/http/replyheaders.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace xbr::host {

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
