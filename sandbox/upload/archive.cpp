#include "sandbox/upload/archive.h"

#include "sandbox/http/text.h"
#include "sandbox/upload/refusal.h"

#include <array>
#include <fstream>
#include <functional>

namespace sandbox {
namespace {

constexpr std::string_view kMetadataName = "metadata.json";
constexpr std::string_view kAssetsFolder = "assets/";
constexpr std::uint64_t kLargestMetadata = 4ULL << 20U;
constexpr std::uint64_t kLargestRelease = 16ULL << 30U;
constexpr zip_int64_t kMostArchiveEntries = 10000;

[[noreturn]] void refuseArchive(const std::string& why) {
    throw Refusal(400, "payload archive: " + why);
}

[[noreturn]] void refuseArchive(const std::string& what, zip_error_t* error) {
    std::string text = what + ": " + zip_error_strerror(error);
    zip_error_fini(error);
    refuseArchive(text);
}

zip_t* openRange(const std::filesystem::path& file, std::uint64_t offset, std::uint64_t length) {
    if (length == 0) {
        refuseArchive("it is empty");
    }
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source =
        zip_source_file_create(file.c_str(), offset, static_cast<zip_int64_t>(length), &error);
    if (source == nullptr) {
        refuseArchive("cannot be read", &error);
    }
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (archive == nullptr) {
        zip_source_free(source);
        refuseArchive("not a sound ZIP archive", &error);
    }
    zip_error_fini(&error);
    return archive;
}

using Sink = std::function<void(std::string_view)>;

// libzip checks length and checksum of the entry as it is read to its end.
void readEntry(zip_t* archive, zip_uint64_t index, const std::string& name, const Sink& sink) {
    const auto close = [](zip_file_t* file) { zip_fclose(file); };
    const std::unique_ptr<zip_file_t, decltype(close)> file(zip_fopen_index(archive, index, 0), close);
    if (!file) {
        refuseArchive("entry '" + name + "' cannot be opened: " + zip_strerror(archive));
    }
    std::array<char, 1U << 16U> buffer;
    zip_int64_t count = 0;
    while ((count = zip_fread(file.get(), buffer.data(), buffer.size())) > 0) {
        sink(std::string_view(buffer.data(), static_cast<std::size_t>(count)));
    }
    if (count < 0) {
        refuseArchive("entry '" + name + "' is damaged: " + zip_file_strerror(file.get()));
    }
}

} // namespace

Archive::Archive(const std::filesystem::path& file, std::uint64_t offset, std::uint64_t length)
    : m_archive(openRange(file, offset, length)) {
    const auto count = zip_get_num_entries(m_archive.get(), 0);
    if (count > kMostArchiveEntries) {
        refuseArchive("it has too many entries");
    }
    for (zip_int64_t i = 0; i < count; ++i) {
        addEntry(static_cast<zip_uint64_t>(i));
    }
    if (m_indices.find(std::string(kMetadataName)) == m_indices.end()) {
        refuseArchive("metadata.json is missing");
    }
}

void Archive::addEntry(zip_uint64_t index) {
    zip_stat_t entry;
    zip_stat_init(&entry);
    // Names are taken by the letter of the format: outside ASCII only with the UTF-8 mark.
    if (zip_stat_index(m_archive.get(), index, ZIP_FL_ENC_STRICT, &entry) != 0) {
        refuseArchive(std::string("an entry cannot be read: ") + zip_strerror(m_archive.get()));
    }
    const std::string name = (entry.valid & ZIP_STAT_NAME) != 0 ? entry.name : "";
    constexpr zip_uint64_t kNeeded = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
    if ((entry.valid & kNeeded) != kNeeded || entry.encryption_method != ZIP_EM_NONE) {
        refuseArchive("entry '" + name + "' is encrypted or incomplete");
    }
    if (entry.comp_method != ZIP_CM_STORE && entry.comp_method != ZIP_CM_DEFLATE) {
        refuseArchive("entry '" + name + "' is neither stored nor deflated");
    }
    m_total += entry.size;
    if (entry.size > kLargestRelease || m_total > kLargestRelease) {
        refuseArchive("it unpacks to more than a release may hold");
    }
    addName(name, entry.size);
    if (!m_indices.emplace(name, index).second) {
        refuseArchive("entry '" + name + "' comes twice");
    }
}

void Archive::addName(const std::string& name, std::uint64_t size) {
    if (name == kMetadataName || name == kAssetsFolder) {
        return;
    }
    const bool isBelowAssets = name.starts_with(kAssetsFolder);
    const auto file = isBelowAssets ? name.substr(kAssetsFolder.size()) : std::string();
    if (!isPlainFileName(file)) {
        refuseArchive("entry '" + name + "' is neither metadata.json nor a file directly in assets/");
    }
    m_assets[file] = size;
}

std::string Archive::readMetadata() {
    std::string text;
    const std::string name(kMetadataName);
    readEntry(m_archive.get(), m_indices.at(name), name, [&](std::string_view bytes) {
        if (text.size() + bytes.size() > kLargestMetadata) {
            refuseArchive("metadata.json is too large");
        }
        text += bytes;
    });
    return text;
}

void Archive::extractAsset(const std::string& name, const std::filesystem::path& target) {
    std::ofstream out(target, std::ios::binary);
    const auto limit = m_assets.at(name);
    std::uint64_t written = 0;
    const auto entry = std::string(kAssetsFolder) + name;
    readEntry(m_archive.get(), m_indices.at(entry), entry, [&](std::string_view bytes) {
        written += bytes.size();
        if (written > limit) {
            refuseArchive("entry '" + entry + "' is longer than it says");
        }
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    });
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + target.string());
    }
}

} // namespace sandbox
