#pragma once

#include "framework/abi/filestore.h"
#include "framework/abi/filesystem.h"
#include "framework/abi/package.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <map>
#include <set>
#include <string>

namespace fakehost {

/// Files in memory, by URL. Folders exist as long as they hold a file.
class FakeFileSystem final : public xbr::Object<xbr::IFileSystem, xbr::IFileStore> {
public:
    xbr::Result openForReading(xbr::Text url, xbr::IStream** out) noexcept override;
    xbr::Result createFile(xbr::Text url, xbr::IStream** out) noexcept override;
    xbr::Result copyFile(xbr::Text from, xbr::Text to) noexcept override;
    bool fileExists(xbr::Text url) noexcept override;
    bool folderExists(xbr::Text url) noexcept override;
    xbr::Result removeFile(xbr::Text url) noexcept override;
    xbr::Result removeFolder(xbr::Text url) noexcept override;
    xbr::Result registerResources(xbr::Text name, const void* bytes, std::uint64_t size) noexcept override;
    xbr::Result unregisterResources(xbr::Text name) noexcept override;

    xbr::Result getCacheFolder(xbr::IString** out) noexcept override;
    xbr::Result replaceFile(xbr::Text url, const void* bytes, std::uint64_t size) noexcept override;
    xbr::Result getFiles(xbr::Text folder, xbr::IFileList** out) noexcept override;

    std::map<std::string, std::string> files;
    std::map<std::string, std::int64_t> modified; ///< of files that were replaced
    std::set<std::string> resources;              ///< names under which modules registered theirs
    bool hasCacheFolder = true;
    std::set<std::string> unreadable;  ///< files that exist and cannot be opened
    std::set<std::string> uncopyable;  ///< files that cannot be copied; what was there before stays
    std::set<std::string> unremovable; ///< folders that stay
    std::function<void()> onCopy;      ///< what happens while a file is copied
    std::set<std::string> incomplete;  ///< files that did not come about whole: their folder is not packed
};

/// Writes "archives" that list what was packed, one "name=bytes;" each.
class FakePackageHandler final : public xbr::Object<xbr::IPackageHandler> {
public:
    xbr::Result createPackage(const xbr::Uid& type, xbr::Text url, xbr::IPackage** out) noexcept override;

    bool failsToCreate = false;
    bool failsToFlush = false;
};

} // namespace fakehost
