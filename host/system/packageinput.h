#pragma once

#include "framework/abi/progress.h"
#include "host/system/filedescriptor.h"

#include <zip.h>

#include <cstdint>
#include <ctime>
#include <string>

namespace xbr::host {

/// A file that goes into an archive, as it was when it was added.
struct PackageEntry {
    std::string path;
    std::string name; ///< in the archive: relative, UTF-8, '/' between its parts
    std::int64_t size;
    timespec modified;
};

/// Reports progress at most every kInterval, because each report may redraw a window.
class PackageProgress {
public:
    static constexpr std::int64_t kIntervalMilliseconds = 50;

    /// `progress` may be null.
    PackageProgress(IProgress* progress, std::int64_t total) : m_progress(progress), m_total(total) {}

    /// Counts `bytes` of work on the entry `name`. False when the user has cancelled.
    bool advance(const std::string& name, std::int64_t bytes);

    /// Reports that all is done.
    void finish();

    bool isCancelled() const { return m_isCancelled; }

private:
    IProgress* m_progress;
    std::int64_t m_total;
    std::int64_t m_done = 0;
    std::int64_t m_lastReport = 0; ///< milliseconds of the steady clock
    bool m_isCancelled = false;
};

/// Gives a file's bytes to libzip, and fails when they are not the bytes that were added: libzip itself would
/// write a short entry without a word.
class PackageInput {
public:
    PackageInput(const PackageEntry& entry, PackageProgress& progress);
    PackageInput(const PackageInput&) = delete;
    PackageInput& operator=(const PackageInput&) = delete;
    ~PackageInput();

    /// A source that reads from this object; null when out of memory. This object must outlive it.
    zip_source_t* source(zip_t* archive);

private:
    static zip_int64_t command(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t handle(void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t open();
    zip_int64_t read(void* data, zip_uint64_t length);
    zip_int64_t describe(void* data, zip_uint64_t length) const;
    zip_int64_t fail(int code);
    bool isUnchanged() const;

    const PackageEntry& m_entry;
    PackageProgress& m_progress;
    FileDescriptor m_file;
    std::int64_t m_position = 0;
    zip_error_t m_error;
};

} // namespace xbr::host
