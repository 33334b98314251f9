#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// The files of a folder, as they were when it was read.
struct IFileList : IObject {
    static constexpr Uid kUid = uid("0e6085a5-a15f-4b0a-9b6d-0c42a841fb14");

    virtual std::int32_t count() const noexcept = 0;

    /// Of file `index`, 0 to count() - 1: its URL (empty beyond the last), its size, and when it was changed
    /// last.
    virtual Text urlAt(std::int32_t index) const noexcept = 0;
    virtual std::uint64_t sizeAt(std::int32_t index) const noexcept = 0;
    virtual std::int64_t modifiedAt(std::int32_t index) const noexcept = 0;
};

/// Files that outlive the process and that other processes of the user's work with at the same time; asked of
/// the file system.
struct IFileStore : IObject {
    static constexpr Uid kUid = uid("cc521163-740c-4d84-b40a-adcb44f58f70");

    /// URL of the user's folder for files that can be made again; everything in it may vanish between two
    /// runs. A module uses a folder of its own name below it. kUnexpected: there is none and none can be
    /// made.
    virtual Result getCacheFolder(IString** out) noexcept = 0;

    /// Writes a local file as a whole, for the user alone: others see the old file or the new one, never a
    /// part. Missing parent folders are made. kUnexpected: it cannot be written, and the old file is as it
    /// was.
    virtual Result replaceFile(Text url, const void* bytes, std::uint64_t size) noexcept = 0;

    /// The regular files of a local folder, without those of its subfolders, handed over; kFalse and null
    /// when there is no such folder.
    virtual Result getFiles(Text folder, IFileList** out) noexcept = 0;
};

} // namespace xbr
