#include "sandbox/upload/ingestion.h"

#include "sandbox/upload/archive.h"
#include "sandbox/upload/metadata.h"
#include "sandbox/upload/multipart.h"
#include "sandbox/upload/refusal.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace sandbox {

namespace {

constexpr std::string_view kPartName = "payload";
constexpr std::string_view kFileName = "payload.zip";
constexpr std::uint64_t kLargestBody = 8ULL << 30U;

Reply refusalReply(int status, const std::string& why) {
    const nlohmann::json body = {{"errors", why}};
    // Names from a foreign archive need not be proper UTF-8.
    return jsonReply(status, body.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

void writeFile(const std::filesystem::path& target, const std::string& text) {
    std::ofstream out(target, std::ios::binary);
    out << text;
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + target.string());
    }
}

void saveBody(Exchange& exchange, const std::filesystem::path& target) {
    std::ofstream out(target, std::ios::binary);
    const bool complete = exchange.readBody([&](std::string_view bytes) {
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return out.good() && exchange.bodyBytes() <= kLargestBody;
    });
    if (exchange.bodyBytes() > kLargestBody) {
        throw Refusal(413, "the body is larger than 8 GiB");
    }
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + target.string());
    }
    if (!complete) {
        throw Refusal(400, "the body breaks off");
    }
}

FilePart findPayload(const std::filesystem::path& file, const std::string& boundary) {
    const MappedFile body(file);
    auto part = parseSinglePart(boundary, body.view());
    if (part.name != kPartName || part.filename != kFileName) {
        throw Refusal(400,
                      "multipart body: the part is not named 'payload' with the file name 'payload.zip'");
    }
    return part;
}

// The usual reason when such a file seems to be there.
std::string hintFor(const std::string& file) {
    const bool isAscii =
        std::all_of(file.begin(), file.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return isAscii ? "" : " (an entry name outside ASCII needs the UTF-8 mark)";
}

void matchAssets(const Archive& archive, const Metadata& metadata) {
    for (const auto& file : metadata.audioFiles) {
        if (archive.assets().count(file) == 0) {
            throw Refusal(400, "payload archive: 'assets/" + file + "' is named by a song but missing" +
                                   hintFor(file));
        }
    }
    for (const auto& asset : archive.assets()) {
        if (metadata.audioFiles.count(asset.first) == 0) {
            throw Refusal(400, "payload archive: 'assets/" + asset.first + "' belongs to no song");
        }
    }
}

} // namespace

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

Reply Ingestion::handle(Exchange& exchange) const {
    try {
        const nlohmann::json body = {{"release", {{"id", ingest(exchange)}}}};
        return jsonReply(201, body.dump());
    } catch (const Refusal& refusal) {
        return refusalReply(refusal.status(), refusal.what());
    }
}

std::int64_t Ingestion::ingest(Exchange& exchange) const {
    const auto boundary = boundaryOf(exchange.head().header("Content-Type"));
    const Staging staging(m_inbox.stagingFolder());
    saveBody(exchange, staging.body());
    return unpack(staging, boundary);
}

std::int64_t Ingestion::unpack(const Staging& staging, const std::string& boundary) const {
    const auto part = findPayload(staging.body(), boundary);
    Archive archive(staging.body(), part.offset, part.length);
    const auto text = archive.readMetadata();
    matchAssets(archive, checkMetadata(text, m_clientId));

    std::filesystem::create_directories(staging.release() / "assets");
    writeFile(staging.release() / "metadata.json", text);
    for (const auto& asset : archive.assets()) {
        archive.extractAsset(asset.first, staging.release() / "assets" / asset.first);
    }
    return m_inbox.accept(staging);
}

} // namespace sandbox
