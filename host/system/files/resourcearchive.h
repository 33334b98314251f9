#pragma once

#include "framework/abi/stream.h"
#include "framework/support/objects/object.h"

#include <zip.h>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace xbr::host {

/// A ZIP archive in memory, for reading.
class ResourceArchive {
public:
    /// A larger entry is not read: the sizes in an archive are claims, not facts.
    static constexpr std::uint64_t kMaximumSize = std::uint64_t{64} << 20U;

    /// The bytes are not copied. Null when they are no archive.
    static std::unique_ptr<ResourceArchive> open(const void* bytes, std::uint64_t size);

    /// An entry's bytes, checked against its check sum; nothing when there is none or it is damaged.
    std::optional<std::vector<char>> read(const std::string& path) const;

    bool hasFile(const std::string& path) const { return m_files.contains(path); }

    /// `path` has no trailing slash; empty for the archive's root.
    bool hasFolder(const std::string& path) const { return m_folders.contains(path); }

private:
    struct Discard {
        void operator()(zip_t* archive) const noexcept { zip_discard(archive); }
    };
    explicit ResourceArchive(zip_t* archive);
    void index(const std::string& name, zip_uint64_t entry);

    std::unique_ptr<zip_t, Discard> m_archive;
    std::unordered_map<std::string, zip_uint64_t> m_files;
    std::unordered_set<std::string> m_folders{std::string()};
};

/// Bytes for reading.
class ResourceStream final : public Object<IStream> {
public:
    explicit ResourceStream(std::vector<char> bytes) : m_bytes(std::move(bytes)) {}

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override;
    Result write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override;
    Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept override;

private:
    std::vector<char> m_bytes;
    std::int64_t m_position = 0;
};

} // namespace xbr::host
