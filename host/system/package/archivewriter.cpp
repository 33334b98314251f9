#include "host/system/package/archivewriter.h"

#include "host/system/package/archivesink.h"
#include "host/system/package/packageinput.h"

#include <deque>
#include <memory>

namespace xbr::host {

namespace {

struct DiscardArchive {
    void operator()(zip_t* archive) const noexcept { zip_discard(archive); }
};

bool addEntry(zip_t* archive, const PackageEntry& entry, PackageInput& input) {
    zip_source_t* source = input.source(archive);
    const auto index = source ? zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_UTF_8) : -1;
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    return entry.isDeflated ||
           zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0) == 0;
}

Problem problemOf(zip_t* archive, const std::string& path, const std::string& name) {
    zip_error_t* const error = zip_get_error(archive);
    if (zip_error_code_zip(error) == ZIP_ER_CHANGED) {
        return {Fault::kChanged, name, 0, {}, {}, {}};
    }
    const bool isSystems = zip_error_system_type(error) == ZIP_ET_SYS;
    return fileProblem(path, isSystems ? zip_error_code_system(error) : 0, Fault::kNotWritable);
}

bool write(const std::string& path, const std::vector<PackageEntry>& entries, PackageProgress& progress,
           const std::stop_token& stop, Problem& problem) {
    ArchiveSink sink(path, stop);
    PackagePipeline pipeline(entries);
    std::deque<PackageInput> inputs;
    std::unique_ptr<zip_t, DiscardArchive> archive(sink.open());
    if (!archive) {
        return false;
    }
    for (const auto& entry : entries) {
        if (stop.stop_requested() ||
            !addEntry(archive.get(), entry, inputs.emplace_back(entry, pipeline, progress, stop))) {
            return false;
        }
    }
    if (zip_close(archive.get()) != 0) {
        problem = problemOf(archive.get(), path, progress.name());
        return false;
    }
    [[maybe_unused]] const auto* gone = archive.release();
    return true;
}

} // namespace

Result writeArchive(const std::string& path, std::vector<PackageEntry> entries, bool isCompressed,
                    PackageProgress& progress, const std::stop_token& stop, Problem& problem) {
    problem = fileProblem(path, 0, Fault::kNotWritable);
    // libzip writes no archive without entries.
    if (entries.empty()) {
        return kUnexpected;
    }
    for (PackageEntry& entry : entries) {
        entry.isDeflated = isCompressed;
    }
    if (write(path, entries, progress, stop, problem)) {
        return kOk;
    }
    return stop.stop_requested() ? kFalse : kUnexpected;
}

} // namespace xbr::host
