#include "sandbox/upload/mappedfile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace sandbox {

MappedFile::MappedFile(const std::filesystem::path& file) : m_size(std::filesystem::file_size(file)) {
    if (m_size == 0) {
        return; // the system maps nothing of length 0
    }
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        m_address = ::mmap(nullptr, m_size, PROT_READ, MAP_PRIVATE, descriptor, 0);
        ::close(descriptor);
    }
    if (descriptor < 0 || m_address == MAP_FAILED) {
        throw std::system_error(errno, std::generic_category(), "cannot map " + file.string());
    }
}

MappedFile::~MappedFile() {
    if (m_address != nullptr) {
        ::munmap(m_address, m_size);
    }
}

} // namespace sandbox
