#include "host/net/http/requestbody.h"

#include <algorithm>

namespace xbr::host {

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
