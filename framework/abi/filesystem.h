#pragma once

#include "framework/abi/stream.h"
#include "framework/abi/text.h"

namespace xbr {

/// Files and folders by URL: local files, and the resources that modules registered (for reading only). Other
/// locations do not exist (false, kFalse) and cannot be written (kInvalidArgument).
struct IFileSystem : IObject {
    static constexpr Uid kUid = uid("d8f39c93-48aa-4ee9-99ed-ed2922e3d0a9");

    /// Opens a file for reading. kFalse and null when there is no such file or it may not be read.
    virtual Result openForReading(Text url, IStream** out) noexcept = 0;

    /// Creates a file for writing, replacing an old one; missing parent folders are made. kUnexpected: it
    /// cannot be created there.
    virtual Result createFile(Text url, IStream** out) noexcept = 0;

    /// Copies a file, replacing an old one; missing parent folders are made. kUnexpected: the copy failed,
    /// and no partial copy is left.
    virtual Result copyFile(Text from, Text to) noexcept = 0;

    virtual bool fileExists(Text url) noexcept = 0;
    virtual bool folderExists(Text url) noexcept = 0;

    /// kFalse when there was no such file.
    virtual Result removeFile(Text url) noexcept = 0;

    /// Removes a folder with everything in it; links are removed, not followed. kFalse when there was none.
    virtual Result removeFolder(Text url) noexcept = 0;

    /// Makes the contents of a ZIP archive readable as "resource://<name>/...". The bytes are not copied and
    /// must stay until `unregisterResources`. kInvalidArgument: not a readable archive; kFalse: the name is
    /// taken.
    virtual Result registerResources(Text name, const void* bytes, std::uint64_t size) noexcept = 0;
    virtual Result unregisterResources(Text name) noexcept = 0;
};

} // namespace xbr

/// Answers the one file system. Never null.
XBR_API xbr::IFileSystem* XBRGetFileSystem() noexcept;
