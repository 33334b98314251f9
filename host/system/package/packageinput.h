#pragma once

#include "host/system/files/backgroundwork.h"
#include "host/system/package/packagepipeline.h"

#include <zip.h>

namespace xbr::host {

/// Gives an entry's bytes to libzip as the pipeline made them, and fails when the file is not the one that
/// was added: libzip itself would write a short entry without a word.
class PackageInput {
public:
    /// libzip must read the inputs in the order of the pipeline's entries. When `stop` is requested, reading
    /// fails. All of them must outlive this object.
    PackageInput(const PackageEntry& entry, PackagePipeline& pipeline, PackageProgress& progress,
                 const std::stop_token& stop);
    PackageInput(const PackageInput&) = delete;
    PackageInput& operator=(const PackageInput&) = delete;
    ~PackageInput();

    /// A source that reads from this object; null when out of memory. This object must outlive it.
    zip_source_t* source(zip_t* archive);

private:
    static zip_int64_t command(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t handle(void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t read(void* data, zip_uint64_t length);
    bool fetch();
    zip_int64_t describe(void* data, zip_uint64_t length) const;
    zip_int64_t fail(int code);

    const PackageEntry& m_entry;
    PackagePipeline& m_pipeline;
    PackageProgress& m_progress;
    const std::stop_token& m_stop;
    const PackedPiece* m_piece = nullptr;
    std::size_t m_position = 0; ///< in the piece
    std::uint32_t m_checkSum = 0;
    bool m_isComplete = false;
    zip_error_t m_error;
};

} // namespace xbr::host
