#include "host/system/package/writebuffer.h"

#include "host/system/files/filestream.h"

#include <algorithm>
#include <cstring>

namespace xbr::host {

void WriteBuffer::start(int descriptor) {
    m_descriptor = descriptor;
    m_start = 0;
    m_used = 0;
}

bool WriteBuffer::write(std::int64_t position, std::span<const std::byte> bytes) {
    const bool isWithin = position >= m_start && position <= m_start + static_cast<std::int64_t>(m_used);
    if (!isWithin) {
        if (!flush()) {
            return false;
        }
        m_start = position;
    }
    while (!bytes.empty()) {
        auto offset = static_cast<std::size_t>(position - m_start);
        if (offset == kCapacity) {
            if (!flush()) {
                return false;
            }
            offset = 0;
        }
        const auto count = std::min(bytes.size(), kCapacity - offset);
        std::memcpy(m_bytes.get() + offset, bytes.data(), count);
        m_used = std::max(m_used, offset + count);
        position += static_cast<std::int64_t>(count);
        bytes = bytes.subspan(count);
    }
    return true;
}

bool WriteBuffer::flush() {
    if (writeAt(m_descriptor, m_bytes.get(), m_used, m_start) != m_used) {
        return false;
    }
    m_start += static_cast<std::int64_t>(m_used);
    m_used = 0;
    return true;
}

} // namespace xbr::host
