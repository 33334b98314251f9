#include "host/system/package/packageinput.h"

#include <algorithm>
#include <cstring>

namespace xbr::host {

PackageInput::PackageInput(const PackageEntry& entry, PackagePipeline& pipeline, PackageProgress& progress,
                           const std::stop_token& stop)
    : m_entry(entry),
      m_pipeline(pipeline),
      m_progress(progress),
      m_stop(stop) {
    zip_error_init(&m_error);
}

PackageInput::~PackageInput() {
    zip_error_fini(&m_error);
}

zip_source_t* PackageInput::source(zip_t* archive) {
    return zip_source_function(archive, &PackageInput::command, this);
}

zip_int64_t PackageInput::command(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<PackageInput*>(self)->handle(data, length, command);
}

zip_int64_t PackageInput::handle(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_READABLE;
    case ZIP_SOURCE_OPEN:
        m_progress.start(m_entry.name);
        return 0;
    case ZIP_SOURCE_READ:
        return read(data, length);
    case ZIP_SOURCE_STAT:
        return describe(data, length);
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&m_error, data, length);
    case ZIP_SOURCE_CLOSE:
    case ZIP_SOURCE_FREE:
        return 0;
    default:
        return fail(ZIP_ER_OPNOTSUPP);
    }
}

zip_int64_t PackageInput::read(void* data, zip_uint64_t length) {
    while (!m_isComplete && (!m_piece || m_position == m_piece->packedSize)) {
        if (!fetch()) {
            return fail(m_stop.stop_requested() ? ZIP_ER_CANCELLED : ZIP_ER_CHANGED);
        }
    }
    if (m_isComplete) {
        return 0;
    }
    const auto count = std::min<std::size_t>(length, m_piece->packedSize - m_position);
    std::memcpy(data, m_piece->bytes.data() + m_position, count);
    m_position += count;
    return static_cast<zip_int64_t>(count);
}

/// Goes to the next piece or, after the last one, to the end.
bool PackageInput::fetch() {
    if (m_piece && m_piece->isLast) {
        m_isComplete = m_piece->source->isUnchanged();
        return m_isComplete;
    }
    if (m_stop.stop_requested()) {
        return false;
    }
    m_piece = &m_pipeline.next();
    if (!m_piece->isGood) {
        return false;
    }
    m_position = 0;
    m_checkSum = joinedCheckSum(m_checkSum, m_piece->checkSum, m_piece->size);
    m_progress.advance(static_cast<std::int64_t>(m_piece->size));
    return true;
}

zip_int64_t PackageInput::describe(void* data, zip_uint64_t length) const {
    if (length < sizeof(zip_stat_t)) {
        return -1;
    }
    auto* status = static_cast<zip_stat_t*>(data);
    zip_stat_init(status);
    status->valid = ZIP_STAT_SIZE | ZIP_STAT_MTIME;
    status->size = static_cast<zip_uint64_t>(m_entry.identity.size);
    status->mtime = m_entry.identity.modified.tv_sec;
    if (m_entry.isDeflated) {
        // libzip takes what is deflated already as it is, and with it the check sum that it cannot compute.
        status->valid |= ZIP_STAT_COMP_METHOD | (m_isComplete ? ZIP_STAT_CRC : 0U);
        status->comp_method = ZIP_CM_DEFLATE;
        status->crc = m_checkSum;
    }
    return sizeof(zip_stat_t);
}

zip_int64_t PackageInput::fail(int code) {
    zip_error_set(&m_error, code, 0);
    return -1;
}

} // namespace xbr::host
