#include "host/system/package/zippackage.h"

#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/mainthread.h"
#include "host/system/files/fileproblem.h"
#include "host/system/package/archivewriter.h"

#include <filesystem>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace xbr::host {

namespace {

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
    PackageProgress state(0);
    const Result result = runReporting(
        progress, state, [&](const std::stop_token& stop) { return scanFolder(*path, state, stop, added); });
    if (result == kUnexpected) {
        noteFileProblem({Fault::kUnreadable, *path, 0, {}, {}, {}});
    }
    const std::string incomplete = incompleteFileIn(*path);
    if (result == kOk && incomplete.empty()) {
        std::move(added.begin(), added.end(), std::back_inserter(m_entries));
        m_state = State::kCreated;
        return kOk;
    }
    // An archive without something that it was told to hold is never written.
    m_state = State::kRefused;
    if (!incomplete.empty()) {
        noteFileProblem({Fault::kUnreadable, incomplete, 0, {}, {}, {}});
    }
    return result == kFalse ? kFalse : kUnexpected;
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
        total += entry.identity.size;
    }
    PackageProgress state(total);
    if (!m_entries.empty()) {
        state.start(m_entries.front().name);
    }
    Problem problem;
    const Result result = runReporting(progress, state, [&](const std::stop_token& stop) {
        return writeArchive(m_path, std::move(m_entries), m_isCompressed, state, stop, problem);
    });
    m_entries.clear();
    if (result == kUnexpected) {
        noteFileProblem(problem);
    }
    if (progress && result == kOk) {
        progress->update(1.0, Text{});
    }
    return result;
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

Result PackageHandler::createPackage(const Uid& type, Text url, IPackage** out) noexcept {
    assertMainThread();
    *out = nullptr;
    auto path = localPath(view(url));
    if (!(type == kZipPackage) || !path || path->ends_with('/')) {
        return kInvalidArgument;
    }
    *out = make<ZipPackage>(std::move(*path)).detach();
    return kOk;
}

} // namespace xbr::host

xbr::IPackageHandler* XBRGetPackageHandler() noexcept {
    static auto* const handler = xbr::make<xbr::host::PackageHandler>().detach();
    return handler;
}
