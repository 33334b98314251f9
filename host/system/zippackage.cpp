#include "host/system/zippackage.h"

#include "framework/support/text.h"
#include "host/system/archivesink.h"
#include "host/system/folderscan.h"
#include "host/system/hostfileurl.h"
#include "host/system/mainthread.h"

#include <algorithm>
#include <array>
#include <deque>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace xbr::host {

namespace {

/// Already compressed: deflating them again costs time and gains nothing.
bool isDense(const std::string& name) {
    static constexpr std::array kSuffixes{".flac", ".mp3", ".ogg", ".oga",  ".opus",
                                          ".m4a",  ".zip", ".jpg", ".jpeg", ".png"};
    return std::any_of(kSuffixes.begin(), kSuffixes.end(), [&](std::string_view suffix) {
        return name.size() > suffix.size() &&
               std::equal(suffix.rbegin(), suffix.rend(), name.rbegin(), [](char expected, char c) {
                   return expected == (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
               });
    });
}

bool canBeCreated(const std::string& path) {
    struct stat status {};
    const bool isFolder = stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    const std::string parent = std::filesystem::path(path).parent_path().string();
    return !isFolder && access(parent.c_str(), W_OK | X_OK) == 0;
}

} // namespace

Result ZipPackage::setOption(Text name, std::int64_t value) noexcept {
    assertMainThread();
    if (view(name) != "compressed" || (value != 0 && value != 1)) {
        return kInvalidArgument;
    }
    if (m_state != State::kNew) {
        return kUnexpected;
    }
    m_isCompressed = value == 1;
    return kOk;
}

Result ZipPackage::create() noexcept {
    assertMainThread();
    // The old archive goes now: when the new one fails later, nobody may take the old one for it.
    std::error_code error;
    if (m_state != State::kNew || !canBeCreated(m_path) || (std::filesystem::remove(m_path, error), error)) {
        return kUnexpected;
    }
    m_state = State::kCreated;
    return kOk;
}

Result ZipPackage::addFolder(Text folder, std::int32_t mode, IProgress* progress) noexcept {
    assertMainThread();
    const auto path = localPath(view(folder));
    if (!path || mode != kRecursiveRelative) {
        return kInvalidArgument;
    }
    if (m_state != State::kCreated) {
        return kUnexpected;
    }
    // Busy while progress is reported: whoever runs in there must not get at a half-made package.
    const auto self = Ref<ZipPackage>::share(this);
    m_state = State::kBusy;
    std::vector<PackageEntry> added;
    PackageProgress report(progress, 0);
    const Result result = scanFolder(*path, report, added);
    m_state = State::kCreated;
    if (result == kOk) {
        std::move(added.begin(), added.end(), std::back_inserter(m_entries));
    }
    return result;
}

Result ZipPackage::flush(IProgress* progress) noexcept {
    assertMainThread();
    if (m_state != State::kCreated) {
        return kUnexpected;
    }
    const auto self = Ref<ZipPackage>::share(this);
    m_state = State::kBusy;
    const Result result = write(progress);
    m_state = State::kFlushed;
    return result;
}

Result ZipPackage::write(IProgress* progress) {
    std::int64_t total = 0;
    for (const auto& entry : m_entries) {
        total += entry.size;
    }
    PackageProgress report(progress, total);
    ArchiveSink sink(m_path);
    std::deque<PackageInput> inputs;
    zip_t* archive = sink.open();
    const bool isReady = archive && std::all_of(m_entries.begin(), m_entries.end(), [&](const auto& entry) {
                             return addEntry(archive, entry, inputs.emplace_back(entry, report));
                         });
    // libzip writes no archive without entries.
    if (!isReady || m_entries.empty() || zip_close(archive) != 0) {
        if (archive) {
            zip_discard(archive);
        }
        return report.isCancelled() ? kFalse : kUnexpected;
    }
    report.finish();
    return kOk;
}

bool ZipPackage::addEntry(zip_t* archive, const PackageEntry& entry, PackageInput& input) const {
    zip_source_t* source = input.source(archive);
    const auto index = source ? zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_UTF_8) : -1;
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    const bool isDeflated = m_isCompressed && !isDense(entry.name);
    // Level 1: audio hardly deflates, and higher levels take many times as long for a percent.
    return zip_set_file_compression(archive, static_cast<zip_uint64_t>(index),
                                    isDeflated ? ZIP_CM_DEFLATE : ZIP_CM_STORE, isDeflated ? 1 : 0) == 0;
}

Result ZipPackage::close() noexcept {
    assertMainThread();
    if (m_state == State::kBusy) {
        return kUnexpected;
    }
    m_entries.clear();
    m_state = State::kClosed;
    return kOk;
}

} // namespace xbr::host
