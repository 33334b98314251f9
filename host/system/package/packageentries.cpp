#include "host/system/package/packageentries.h"

#include "host/system/files/filestream.h"

#include <fcntl.h>

namespace xbr::host {

void PackageSource::open() {
    m_file = openRegularFile(m_entry.path, O_RDONLY | O_NOFOLLOW);
    if (m_file.isOpen() && identityOf(m_file.get()) != m_entry.identity) {
        m_file.close();
    }
}

bool PackageSource::read(std::int64_t offset, std::span<std::byte> bytes) {
    std::call_once(m_opening, [this] { open(); });
    return m_file.isOpen() && readAt(m_file.get(), bytes.data(), bytes.size(), offset) == bytes.size();
}

bool PackageSource::isUnchanged() const {
    // Both are asked: an open file lives on after it was replaced or removed.
    return m_file.isOpen() && identityOf(m_file.get()) == m_entry.identity &&
           identityAt(m_entry.path) == m_entry.identity;
}

} // namespace xbr::host
