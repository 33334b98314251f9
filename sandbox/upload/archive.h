#pragma once

#include <zip.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace sandbox {

// The payload archive of an upload, read in place: it is a stretch of the file that holds the request's body,
// so that a release of gigabytes is written to disk once only before it is unpacked.
//
// Every method throws Refusal when the archive is not sound.
class Archive {
public:
    // Opens the archive at `offset` of `file` and looks through its entries: refused are names that could
    // leave the folder, names outside the agreed layout, repeated names, encryption and monstrous sizes.
    Archive(const std::filesystem::path& file, std::uint64_t offset, std::uint64_t length);

    std::string readMetadata();

    // Names of the files below assets/, with their sizes.
    const std::map<std::string, std::uint64_t>& assets() const { return m_assets; }

    void extractAsset(const std::string& name, const std::filesystem::path& target);

private:
    struct Discard {
        void operator()(zip_t* archive) const { zip_discard(archive); }
    };

    void addEntry(zip_uint64_t index);
    void addName(const std::string& name, std::uint64_t size);

    std::unique_ptr<zip_t, Discard> m_archive;
    std::map<std::string, std::uint64_t> m_assets;
    std::map<std::string, zip_uint64_t> m_indices;
    std::uint64_t m_total = 0;
};

} // namespace sandbox
