#include "host/net/http/reply.h"

namespace xbr::host {

bool Reply::addHeaderLine(std::string_view line) {
    if (line.starts_with("HTTP/")) {
        // What came before was an interim answer (RFC 9110, section 15.2).
        m_headersEnded = false;
    } else if (line == "\r\n" || line == "\n") {
        m_headersEnded = true;
    }
    m_headers.addLine(line);
    m_headerBytes += line.size();
    return m_headerBytes <= kHeaderLimit;
}

bool Reply::addBody(std::string_view bytes) {
    m_bodyBytes += bytes.size();
    if (m_bodyBytes > kBodyLimit) {
        return false;
    }
    if (!m_body) {
        m_body = make<MemoryStream>();
    }
    m_body->write(bytes);
    return true;
}

bool Reply::hasBodyOf(std::int64_t length) const noexcept {
    return m_headersEnded && length >= 0 &&
           (m_body ? m_body->size() : 0) == static_cast<std::uint64_t>(length);
}

Ref<MemoryStream> Reply::body() const {
    if (m_body) {
        rewind(*m_body);
    }
    return m_body;
}

} // namespace xbr::host
