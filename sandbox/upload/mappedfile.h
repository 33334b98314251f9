#pragma once

#include <filesystem>
#include <string_view>

namespace sandbox {

// A file's bytes, readable in place without a copy in memory.
class MappedFile {
public:
    // Throws std::system_error.
    explicit MappedFile(const std::filesystem::path& file);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    // Valid as long as the object.
    std::string_view view() const { return {static_cast<const char*>(m_address), m_size}; }

private:
    void* m_address = nullptr;
    std::size_t m_size = 0;
};

} // namespace sandbox
