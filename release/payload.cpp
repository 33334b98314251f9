#include "release/payload.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/package.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "release/multipartbody.h"

#include <cstdlib>

namespace brindlex {

namespace {

constexpr std::string_view kEndpoint = "api/frontstage/release_ingestion";

/// Without success there is no archive.
void packFolder(const xbr::Url& folder, const xbr::Url& archive, xbr::IProgress& progress) {
    xbr::Ref<xbr::IPackage> package;
    if (XBRGetPackageHandler()->createPackage(xbr::kZipPackage, xbr::toText(archive.toString()),
                                              package.out()) != xbr::kOk) {
        return;
    }
    package->setOption(xbr::toText("compressed"), 1);
    if (package->create() != xbr::kOk) {
        return;
    }
    package->addFolder(xbr::toText(folder.toString()), xbr::kRecursiveRelative, &progress);
    package->flush(&progress);
    package->close();
}

/// Where the packed payload is written.
xbr::Url archiveOf(const xbr::Url& folder) {
    return folder.parent().join("payload.zip");
}

/// Appends what is left of a stream to the body, and lets the host live meanwhile: a gigabyte takes a while.
bool appendArchive(xbr::MemoryStream& body, xbr::IStream& stream, const std::string& name,
                   xbr::IProgress& progress) {
    static constexpr std::uint64_t kPiece = 16U << 20U;
    auto left = static_cast<std::uint64_t>(xbr::measure(stream));
    while (left > kPiece) {
        if (!body.writeFrom(stream, kPiece) || progress.isCancelled()) {
            return false;
        }
        left -= kPiece;
        progress.update(1.0, xbr::toText(name)); // it is packed
    }
    return body.writeFrom(stream, left);
}

/// The whole body in memory; empty when the archive cannot be read, or there is no memory for it.
xbr::Ref<xbr::MemoryStream> makeBody(const xbr::Url& archive, std::string_view boundary,
                                     xbr::IProgress& progress) {
    xbr::Ref<xbr::IStream> stream;
    if (XBRGetFileSystem()->openForReading(xbr::toText(archive.toString()), stream.out()) != xbr::kOk) {
        return {};
    }
    auto body = xbr::make<xbr::MemoryStream>();
    const bool isWhole = body->write(partHead(boundary, archive.fileName())) &&
                         appendArchive(*body, *stream, archive.fileName(), progress) &&
                         body->write(partTail(boundary)) && xbr::rewind(*body);
    return isWhole ? body : nullptr;
}

} // namespace

xbr::Url getPayloadFolder() {
    xbr::Ref<xbr::IString> temporary;
    const bool hasFolder = XBRGetSystem()->getTemporaryFolder(temporary.out()) == xbr::kOk;
    return hasFolder ? xbr::Url(xbr::take(temporary)).join("Brindlex").join("payload") : xbr::Url();
}

xbr::Ref<IngestionRequest> createIngestionRequest(xbr::IProgress& progress) {
    // The host's generator as it is, never seeded here; only the main thread comes by.
    // NOLINTNEXTLINE(concurrency-mt-unsafe)
    const std::string boundary = makeBoundary(std::rand());
    const xbr::Url folder = getPayloadFolder();
    const xbr::Url archive = archiveOf(folder);
    if (folder.isEmpty()) {
        return {};
    }
    packFolder(folder, archive, progress);
    auto body = makeBody(archive, boundary, progress);
    if (!body) {
        return {};
    }
    auto request = xbr::make<IngestionRequest>();
    request->path = kEndpoint;
    request->body = std::move(body);
    request->contentType = multipartContentType(boundary);
    return request;
}

bool isPayloadOnDisk() {
    const xbr::Url folder = getPayloadFolder();
    return folder.isEmpty() || XBRGetFileSystem()->fileExists(xbr::toText(archiveOf(folder).toString())) ||
           XBRGetFileSystem()->folderExists(xbr::toText(folder.toString()));
}

void cleanupPayload() {
    const xbr::Url folder = getPayloadFolder();
    if (folder.isEmpty()) {
        return;
    }
    const std::string archive = archiveOf(folder).toString();
    if (XBRGetFileSystem()->fileExists(xbr::toText(archive))) {
        XBRGetFileSystem()->removeFile(xbr::toText(archive));
    }
    XBRGetFileSystem()->removeFolder(xbr::toText(folder.toString()));
}

} // namespace brindlex
