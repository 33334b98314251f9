#pragma once

#include "framework/abi/filestore.h"
#include "framework/abi/filesystem.h"
#include "framework/support/objects/object.h"
#include "host/system/files/resourcearchive.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace xbr::host {

/// Local files by file URL, and registered archives by resource URL. Any other URL is kInvalidArgument.
class FileSystem final : public Object<IFileSystem, IFileStore> {
public:
    Result openForReading(Text url, IStream** out) noexcept override;
    Result createFile(Text url, IStream** out) noexcept override;
    Result copyFile(Text from, Text to) noexcept override;
    bool fileExists(Text url) noexcept override;
    bool folderExists(Text url) noexcept override;
    Result removeFile(Text url) noexcept override;
    Result removeFolder(Text url) noexcept override;
    Result registerResources(Text name, const void* bytes, std::uint64_t size) noexcept override;
    Result unregisterResources(Text name) noexcept override;
    Result getCacheFolder(IString** out) noexcept override;
    Result replaceFile(Text url, const void* bytes, std::uint64_t size) noexcept override;
    Result getFiles(Text folder, IFileList** out) noexcept override;

private:
    /// A place inside an archive. Without an archive: no such module is registered.
    struct Resource {
        const ResourceArchive* archive;
        std::string path;
    };
    Resource findResource(std::string_view url) const;
    Result openResource(std::string_view url, IStream** out) const;

    std::map<std::string, std::unique_ptr<ResourceArchive>, std::less<>> m_resources;
};

} // namespace xbr::host
