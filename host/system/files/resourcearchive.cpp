#include "host/system/files/resourcearchive.h"

#include "host/system/files/filestream.h"

#include <algorithm>
#include <cstring>

namespace xbr::host {

namespace {

struct CloseEntry {
    void operator()(zip_file_t* file) const noexcept { zip_fclose(file); }
};

} // namespace

std::unique_ptr<ResourceArchive> ResourceArchive::open(const void* bytes, std::uint64_t size) {
    // Nothing at all is an empty archive to libzip.
    zip_source_t* source = bytes && size > 0 ? zip_source_buffer_create(bytes, size, 0, nullptr) : nullptr;
    if (!source) {
        return nullptr;
    }
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY, nullptr);
    if (!archive) {
        zip_source_free(source);
        return nullptr;
    }
    return std::unique_ptr<ResourceArchive>(new ResourceArchive(archive));
}

ResourceArchive::ResourceArchive(zip_t* archive) : m_archive(archive) {
    const auto count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto entry = static_cast<zip_uint64_t>(i);
        if (const char* name = zip_get_name(archive, entry, ZIP_FL_ENC_GUESS)) {
            index(name, entry);
        }
    }
}

void ResourceArchive::index(const std::string& name, zip_uint64_t entry) {
    for (auto slash = name.find('/'); slash != std::string::npos; slash = name.find('/', slash + 1)) {
        m_folders.insert(name.substr(0, slash));
    }
    if (!name.empty() && name.back() != '/') {
        m_files.emplace(name, entry);
    }
}

std::optional<std::vector<char>> ResourceArchive::read(const std::string& path) const {
    const auto found = m_files.find(path);
    zip_stat_t status;
    if (found == m_files.end() || zip_stat_index(m_archive.get(), found->second, 0, &status) != 0 ||
        (status.valid & ZIP_STAT_SIZE) == 0 || status.size > kMaximumSize) {
        return std::nullopt;
    }
    const std::unique_ptr<zip_file_t, CloseEntry> file(zip_fopen_index(m_archive.get(), found->second, 0));
    if (!file) {
        return std::nullopt;
    }
    // One byte more than the entry claims: reaching the end is what makes libzip compare size and check sum.
    std::vector<char> bytes(status.size + 1);
    std::uint64_t done = 0;
    zip_int64_t came = 0;
    while (done < bytes.size() &&
           (came = zip_fread(file.get(), bytes.data() + done, bytes.size() - done)) > 0) {
        done += static_cast<std::uint64_t>(came);
    }
    if (came < 0 || done != status.size) {
        return std::nullopt;
    }
    bytes.pop_back();
    return bytes;
}

Result ResourceStream::read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept {
    const auto position = std::min(static_cast<std::uint64_t>(m_position), std::uint64_t{m_bytes.size()});
    *done = std::min(size, m_bytes.size() - position);
    if (*done > 0) {
        std::memcpy(buffer, m_bytes.data() + position, *done);
        m_position += static_cast<std::int64_t>(*done);
    }
    return kOk;
}

Result ResourceStream::write(const void* /*buffer*/, std::uint64_t /*size*/, std::uint64_t* done) noexcept {
    *done = 0;
    return kNotImplemented;
}

Result ResourceStream::seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept {
    const auto sought = soughtPosition(offset, origin, m_position, static_cast<std::int64_t>(m_bytes.size()));
    if (!sought) {
        return kInvalidArgument;
    }
    m_position = *sought;
    if (position) {
        *position = m_position;
    }
    return kOk;
}

} // namespace xbr::host
