#pragma once

#include "auth/servicerequest.h"
#include "framework/abi/progress.h"
#include "framework/support/data/url.h"

namespace brindlex {

/// The delivery of one release: path, multipart body and content type. The body holds its own copy of the
/// archive.
struct IngestionRequest final : public ServiceRequest {};

/// Where a payload is put together, below the host's temporary folder. There is one at a time. Empty when the
/// host has no temporary folder.
xbr::Url getPayloadFolder();

/// Packs the payload folder and wraps the archive into the request. Reports to `progress` and looks there for
/// a cancellation. Empty when the archive cannot be written or read back; the files stay until
/// `cleanupPayload`.
xbr::Ref<IngestionRequest> createIngestionRequest(xbr::IProgress& progress);

/// False when neither a payload folder nor an archive is there: a build would mix its files with the new
/// ones.
bool isPayloadOnDisk();

/// Removes the payload folder and the archive; harmless when there are none.
void cleanupPayload();

} // namespace brindlex
