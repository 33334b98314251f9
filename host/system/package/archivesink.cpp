#include "host/system/package/archivesink.h"

#include "host/system/files/filestream.h"

#include <cerrno>
#include <utility>

namespace xbr::host {

ArchiveSink::ArchiveSink(std::string path, std::stop_token stop)
    : m_path(std::move(path)),
      m_stop(std::move(stop)) {
    zip_error_init(&m_error);
}

ArchiveSink::~ArchiveSink() {
    zip_error_fini(&m_error);
}

zip_t* ArchiveSink::open() {
    zip_source_t* source = zip_source_function_create(&ArchiveSink::command, this, nullptr);
    zip_t* archive = source ? zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, nullptr) : nullptr;
    if (source && !archive) {
        zip_source_free(source);
    }
    return archive;
}

zip_int64_t ArchiveSink::command(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<ArchiveSink*>(self)->handle(data, length, command);
}

zip_int64_t ArchiveSink::handle(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_WRITABLE;
    case ZIP_SOURCE_BEGIN_WRITE:
        return begin();
    case ZIP_SOURCE_WRITE:
        return write(data, length);
    case ZIP_SOURCE_SEEK_WRITE:
        return seek(data, length);
    case ZIP_SOURCE_TELL_WRITE:
        return m_position;
    case ZIP_SOURCE_COMMIT_WRITE:
        return commit();
    case ZIP_SOURCE_ROLLBACK_WRITE:
        m_file.reset();
        return 0;
    case ZIP_SOURCE_STAT:
        return fail(ZIP_ER_READ, ENOENT); // a new archive: nothing to read
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&m_error, data, length);
    case ZIP_SOURCE_CLOSE:
    case ZIP_SOURCE_FREE:
        return 0;
    default:
        return fail(ZIP_ER_OPNOTSUPP, 0);
    }
}

zip_int64_t ArchiveSink::begin() {
    m_position = 0;
    m_end = 0;
    m_file = PendingFile::start(m_path);
    if (!m_file) {
        return fail(ZIP_ER_TMPOPEN, errno);
    }
    m_buffer.start(m_file->descriptor());
    return 0;
}

zip_int64_t ArchiveSink::write(const void* data, zip_uint64_t length) {
    if (m_stop.stop_requested()) {
        return fail(ZIP_ER_CANCELLED, 0);
    }
    if (!m_buffer.write(m_position, {static_cast<const std::byte*>(data), length})) {
        return fail(ZIP_ER_WRITE, errno);
    }
    m_position += static_cast<std::int64_t>(length);
    m_end = std::max(m_end, m_position);
    return static_cast<zip_int64_t>(length);
}

zip_int64_t ArchiveSink::seek(void* data, zip_uint64_t length) {
    const auto* wanted = ZIP_SOURCE_GET_ARGS(zip_source_args_seek_t, data, length, &m_error);
    if (!wanted) {
        return -1;
    }
    const auto position =
        soughtPosition(wanted->offset, static_cast<SeekOrigin>(wanted->whence), m_position, m_end);
    if (!position) {
        return fail(ZIP_ER_INVAL, 0);
    }
    m_position = *position;
    return 0;
}

zip_int64_t ArchiveSink::commit() {
    // Not synchronised with the disk: the archive is read back at once and lives for one upload.
    const bool isComplete = m_buffer.flush() && !m_stop.stop_requested() && m_file->commit();
    const int systemError = errno;
    m_file.reset();
    return isComplete ? 0 : fail(ZIP_ER_RENAME, systemError);
}

zip_int64_t ArchiveSink::fail(int code, int systemError) {
    zip_error_set(&m_error, code, systemError);
    return -1;
}

} // namespace xbr::host
