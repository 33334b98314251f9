#include "host/system/files/localfiles.h"

#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/mainthread.h"
#include "host/base/textscan.h"
#include "host/system/files/backgroundwork.h"
#include "host/system/files/fileproblem.h"
#include "host/system/files/filestore.h"
#include "host/system/files/filestream.h"
#include "host/system/files/pendingfile.h"
#include "host/system/files/temporaryfolder.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace xbr::host {

namespace {

constexpr std::string_view kResourceScheme = "resource://";

void removeTrailingSlashes(std::string& path) {
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back();
    }
}

bool makeParents(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (error) {
        errno = error.value(); // as the calls that follow would tell
    }
    return !error;
}

std::string_view nameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

bool isOfKind(const std::string& path, mode_t kind) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == kind;
}

Problem copyProblem(const std::string& source, const std::string& target, int error) {
    // The system has no complaint when the file was changed while it was copied.
    Problem problem = fileProblem(source, error, error == 0 ? Fault::kChanged : Fault::kUnreadable);
    if (problem.fault == Fault::kDiskFull) {
        problem.subject = target;
    }
    return problem;
}

} // namespace

FileSystem::Resource FileSystem::findResource(std::string_view url) const {
    url.remove_prefix(kResourceScheme.size());
    const auto slash = std::min(url.find('/'), url.size());
    const auto found = m_resources.find(url.substr(0, slash));
    auto path = percentDecoded(url.substr(std::min(slash + 1, url.size())));
    if (found == m_resources.end() || !path) {
        return {nullptr, {}};
    }
    return {found->second.get(), std::move(*path)};
}

Result FileSystem::openResource(std::string_view url, IStream** out) const {
    const Resource resource = findResource(url);
    auto bytes = resource.archive ? resource.archive->read(resource.path) : std::nullopt;
    if (!bytes) {
        return kFalse;
    }
    *out = make<ResourceStream>(std::move(*bytes)).detach();
    return kOk;
}

Result FileSystem::openForReading(Text url, IStream** out) noexcept {
    assertMainThread();
    *out = nullptr;
    if (view(url).starts_with(kResourceScheme)) {
        return openResource(view(url), out);
    }
    const auto path = localPath(view(url));
    if (!path) {
        return kInvalidArgument;
    }
    auto file = openRegularFile(*path, O_RDONLY);
    if (!file.isOpen()) {
        return kFalse;
    }
    auto stream = make<FileStream>(std::move(file), StreamAccess::kRead);
    if (path->starts_with(temporaryFolder() + '/')) {
        stream->showReading(); // something that was prepared is read back
    }
    *out = stream.detach();
    return kOk;
}

Result FileSystem::createFile(Text url, IStream** out) noexcept {
    assertMainThread();
    *out = nullptr;
    const auto path = localPath(view(url));
    if (!path) {
        return kInvalidArgument;
    }
    auto file = makeParents(*path) ? openRegularFile(*path, O_RDWR | O_CREAT | O_TRUNC) : FileDescriptor();
    if (!file.isOpen()) {
        noteFileProblem(fileProblem(*path, errno, Fault::kNotWritable));
        noteIncompleteFile(*path);
        return kUnexpected;
    }
    forgetIncompleteFiles(*path);
    *out = make<FileStream>(std::move(file), StreamAccess::kReadWrite, *path).detach();
    return kOk;
}

Result FileSystem::copyFile(Text from, Text to) noexcept {
    assertMainThread();
    const auto source = localPath(view(from));
    const auto target = localPath(view(to));
    if (!source || !target) {
        return kInvalidArgument;
    }
    int error = 0;
    const Result result = runForIndicator(nameOf(*source), [&](const std::stop_token& stop) {
        errno = 0;
        const bool isCopied =
            isOfKind(*source, S_IFREG) && makeParents(*target) && host::copyFile(*source, *target, stop);
        error = errno;
        return isCopied ? kOk : stop.stop_requested() ? kFalse : kUnexpected;
    });
    if (result == kUnexpected) {
        noteFileProblem(copyProblem(*source, *target, error));
    }
    if (result != kOk) {
        noteIncompleteFile(*target); // also when an older file of that name is still there
        return kUnexpected;
    }
    forgetIncompleteFiles(*target);
    return kOk;
}

bool FileSystem::fileExists(Text url) noexcept {
    assertMainThread();
    if (view(url).starts_with(kResourceScheme)) {
        const Resource resource = findResource(view(url));
        return resource.archive && resource.archive->hasFile(resource.path);
    }
    const auto path = localPath(view(url));
    return path && isOfKind(*path, S_IFREG);
}

bool FileSystem::folderExists(Text url) noexcept {
    assertMainThread();
    if (view(url).starts_with(kResourceScheme)) {
        Resource resource = findResource(view(url));
        if (resource.path.ends_with('/')) {
            resource.path.pop_back();
        }
        return resource.archive && resource.archive->hasFolder(resource.path);
    }
    const auto path = localPath(view(url));
    return path && isOfKind(*path, S_IFDIR);
}

Result FileSystem::removeFile(Text url) noexcept {
    assertMainThread();
    const auto path = localPath(view(url));
    if (!path) {
        return kInvalidArgument;
    }
    if (unlink(path->c_str()) == 0) {
        forgetIncompleteFiles(*path);
        return kOk;
    }
    const bool isNoFile = errno == ENOENT || errno == ENOTDIR || errno == EISDIR;
    return isNoFile ? kFalse : kUnexpected;
}

Result FileSystem::removeFolder(Text url) noexcept {
    assertMainThread();
    auto path = localPath(view(url));
    if (!path) {
        return kInvalidArgument;
    }
    // A trailing slash would make the system follow a link that stands in the folder's place.
    removeTrailingSlashes(*path);
    if (*path == "/") {
        return kInvalidArgument;
    }
    struct stat status {};
    if (lstat(path->c_str(), &status) != 0 || (!S_ISDIR(status.st_mode) && !S_ISLNK(status.st_mode))) {
        forgetIncompleteFiles(*path); // it may never have come so far
        return kFalse;
    }
    std::error_code error;
    std::filesystem::remove_all(*path, error);
    if (error) {
        return kUnexpected;
    }
    forgetIncompleteFiles(*path);
    return kOk;
}

Result FileSystem::registerResources(Text name, const void* bytes, std::uint64_t size) noexcept {
    assertMainThread();
    if (view(name).empty() || view(name).find('/') != std::string_view::npos) {
        return kInvalidArgument;
    }
    if (m_resources.contains(view(name))) {
        return kFalse;
    }
    auto archive = ResourceArchive::open(bytes, size);
    if (!archive) {
        return kInvalidArgument;
    }
    m_resources.emplace(view(name), std::move(archive));
    return kOk;
}

Result FileSystem::unregisterResources(Text name) noexcept {
    assertMainThread();
    const auto found = m_resources.find(view(name));
    if (found == m_resources.end()) {
        return kFalse;
    }
    m_resources.erase(found);
    return kOk;
}

Result FileSystem::getCacheFolder(IString** out) noexcept {
    assertMainThread();
    *out = nullptr;
    const std::string path = cacheFolder();
    return path.empty() ? kUnexpected : giveText(fileUrl(path), out);
}

Result FileSystem::replaceFile(Text url, const void* bytes, std::uint64_t size) noexcept {
    assertMainThread();
    const auto path = localPath(view(url));
    if (!path || path->ends_with('/')) {
        return kInvalidArgument;
    }
    return host::replaceFile(*path, bytes, size) ? kOk : kUnexpected;
}

Result FileSystem::getFiles(Text folder, IFileList** out) noexcept {
    assertMainThread();
    auto path = localPath(view(folder));
    if (path) {
        removeTrailingSlashes(*path);
    }
    *out = path ? listFiles(*path) : nullptr;
    return *out ? kOk : kFalse;
}

} // namespace xbr::host

xbr::IFileSystem* XBRGetFileSystem() noexcept {
    static auto* const fileSystem = [] {
        // Whoever writes beyond the limit for files gets an error then, as on a full disk, and not a signal
        // that ends the process.
        [[maybe_unused]] const auto before = std::signal(SIGXFSZ, SIG_IGN);
        return xbr::make<xbr::host::FileSystem>().detach();
    }();
    return fileSystem;
}
