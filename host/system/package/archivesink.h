#pragma once

#include "host/system/files/pendingfile.h"
#include "host/system/package/writebuffer.h"

#include <zip.h>

#include <optional>
#include <stop_token>
#include <string>

namespace xbr::host {

/// Where libzip writes an archive to.
/// Rationale: libzip's own file target closes its file a second time when the last bytes do not fit on the
/// disk any more, and cannot be stopped in the middle; this one leaves nothing behind when it fails.
class ArchiveSink {
public:
    /// When `stop` is requested, writing fails.
    ArchiveSink(std::string path, std::stop_token stop);
    ArchiveSink(const ArchiveSink&) = delete;
    ArchiveSink& operator=(const ArchiveSink&) = delete;
    ~ArchiveSink();

    /// An empty archive for adding entries, or null. It must be closed or discarded before this object goes.
    zip_t* open();

private:
    static zip_int64_t command(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t handle(void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t begin();
    zip_int64_t write(const void* data, zip_uint64_t length);
    zip_int64_t seek(void* data, zip_uint64_t length);
    zip_int64_t commit();
    zip_int64_t fail(int code, int systemError);

    std::string m_path;
    std::stop_token m_stop;
    std::optional<PendingFile> m_file;
    WriteBuffer m_buffer;
    std::int64_t m_position = 0;
    std::int64_t m_end = 0;
    zip_error_t m_error;
};

} // namespace xbr::host
