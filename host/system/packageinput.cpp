#include "host/system/packageinput.h"

#include "framework/support/text.h"
#include "host/system/filestream.h"

#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>

namespace xbr::host {

namespace {

std::int64_t now() {
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
}

} // namespace

bool PackageProgress::advance(const std::string& name, std::int64_t bytes) {
    m_done += bytes;
    if (m_progress && !m_isCancelled && now() - m_lastReport >= kIntervalMilliseconds) {
        const double fraction =
            m_total > 0 ? static_cast<double>(m_done) / static_cast<double>(m_total) : 0.0;
        m_progress->update(std::min(fraction, 1.0), toText(name));
        m_isCancelled = m_progress->isCancelled();
        m_lastReport = now(); // after the report, which may have taken its time
    }
    return !m_isCancelled;
}

void PackageProgress::finish() {
    if (m_progress) {
        m_progress->update(1.0, Text{});
    }
}

PackageInput::PackageInput(const PackageEntry& entry, PackageProgress& progress)
    : m_entry(entry),
      m_progress(progress) {
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
        return open();
    case ZIP_SOURCE_READ:
        return read(data, length);
    case ZIP_SOURCE_CLOSE:
        m_file.close();
        return 0;
    case ZIP_SOURCE_STAT:
        return describe(data, length);
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&m_error, data, length);
    case ZIP_SOURCE_FREE:
        return 0;
    default:
        return fail(ZIP_ER_OPNOTSUPP);
    }
}

zip_int64_t PackageInput::open() {
    m_position = 0;
    m_file = openRegularFile(m_entry.path, O_RDONLY | O_NOFOLLOW);
    if (!m_file.isOpen()) {
        return fail(ZIP_ER_OPEN);
    }
    return isUnchanged() ? 0 : fail(ZIP_ER_CHANGED);
}

zip_int64_t PackageInput::read(void* data, zip_uint64_t length) {
    const auto came = readAt(m_file.get(), data, length, m_position);
    if (!came) {
        return fail(ZIP_ER_READ);
    }
    m_position += static_cast<std::int64_t>(*came);
    const bool isAtEnd = *came == 0;
    if (m_position > m_entry.size || (isAtEnd && (m_position != m_entry.size || !isUnchanged()))) {
        return fail(ZIP_ER_CHANGED);
    }
    if (!m_progress.advance(m_entry.name, static_cast<std::int64_t>(*came))) {
        return fail(ZIP_ER_CANCELLED);
    }
    return static_cast<zip_int64_t>(*came);
}

zip_int64_t PackageInput::describe(void* data, zip_uint64_t length) const {
    if (length < sizeof(zip_stat_t)) {
        return -1;
    }
    auto* status = static_cast<zip_stat_t*>(data);
    zip_stat_init(status);
    status->valid = ZIP_STAT_SIZE | ZIP_STAT_MTIME;
    status->size = static_cast<zip_uint64_t>(m_entry.size);
    status->mtime = m_entry.modified.tv_sec;
    return sizeof(zip_stat_t);
}

zip_int64_t PackageInput::fail(int code) {
    zip_error_set(&m_error, code, 0);
    return -1;
}

bool PackageInput::isUnchanged() const {
    struct stat status {};
    return fstat(m_file.get(), &status) == 0 && status.st_size == m_entry.size &&
           status.st_mtim.tv_sec == m_entry.modified.tv_sec &&
           status.st_mtim.tv_nsec == m_entry.modified.tv_nsec;
}

} // namespace xbr::host
