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

bool packFolder(const xbr::Url& folder, const xbr::Url& archive, xbr::IProgress& progress) {
    xbr::Ref<xbr::IPackage> package;
    if (XBRGetPackageHandler()->createPackage(xbr::kZipPackage, xbr::toText(archive.toString()),
                                              package.out()) != xbr::kOk) {
        return false;
    }
    package->setOption(xbr::toText("compressed"), 1);
    if (package->create() != xbr::kOk) {
        return false;
    }
    package->addFolder(xbr::toText(folder.toString()), xbr::kRecursiveRelative, &progress);
    package->flush(&progress);
    package->close();
    return true;
}

/// The whole body in memory; empty when the archive cannot be read, or there is no memory for it.
xbr::Ref<xbr::MemoryStream> makeBody(const xbr::Url& archive, std::string_view boundary) {
    xbr::Ref<xbr::IStream> stream;
    if (XBRGetFileSystem()->openForReading(xbr::toText(archive.toString()), stream.out()) != xbr::kOk) {
        return {};
    }
    const auto size = xbr::measure(*stream);
    auto body = xbr::make<xbr::MemoryStream>();
    const bool isWhole = size >= 0 && body->write(partHead(boundary, archive.fileName())) &&
                         xbr::copyStream(*stream, *body, static_cast<std::uint64_t>(size)) &&
                         body->write(partTail(boundary)) && xbr::rewind(*body);
    return isWhole ? body : nullptr;
}

} // namespace

xbr::Url getPayloadFolder() {
    xbr::Ref<xbr::IString> temporary;
    XBRGetSystem()->getTemporaryFolder(temporary.out());
    return xbr::Url(xbr::take(temporary)).join("Brindlex").join("payload");
}

xbr::Url getPayloadArchive() {
    return getPayloadFolder().parent().join("payload.zip");
}

xbr::Ref<IngestionRequest> createIngestionRequest(xbr::IProgress& progress) {
    // The host's generator as it is, never seeded here; only the main thread comes by.
    // NOLINTNEXTLINE(concurrency-mt-unsafe)
    const std::string boundary = makeBoundary(std::rand());
    const xbr::Url archive = getPayloadArchive();
    if (!packFolder(getPayloadFolder(), archive, progress)) {
        return {};
    }
    auto body = makeBody(archive, boundary);
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
    const std::string archive = getPayloadArchive().toString();
    return XBRGetFileSystem()->fileExists(xbr::toText(archive)) ||
           XBRGetFileSystem()->folderExists(xbr::toText(getPayloadFolder().toString()));
}

void cleanupPayload() {
    const std::string archive = getPayloadArchive().toString();
    if (XBRGetFileSystem()->fileExists(xbr::toText(archive))) {
        XBRGetFileSystem()->removeFile(xbr::toText(archive));
    }
    XBRGetFileSystem()->removeFolder(xbr::toText(getPayloadFolder().toString()));
}

} // namespace brindlex
