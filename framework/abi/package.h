#pragma once

#include "framework/abi/progress.h"

namespace xbr {

/// Type of package: a ZIP archive with deflate (PKWARE APPNOTE 6.3).
constexpr Uid kZipPackage = uid("2a907b05-cdbc-4e0e-8ff2-735cbde215be");

/// How `IPackage::addFolder` takes a folder: bit 0 with its subfolders, bit 1 with paths relative to it.
constexpr std::int32_t kRecursiveRelative = 3;

/// An archive that is being written.
struct IPackage : IObject {
    static constexpr Uid kUid = uid("e6f9d4d0-d358-4551-82d9-71b60333d2e3");

    /// Sets an option before `create`: "compressed" 1 compresses entries (0: stores them). kInvalidArgument
    /// for an unknown option.
    virtual Result setOption(Text name, std::int64_t value) noexcept = 0;

    /// Starts the archive. An old file of that name is removed at once, so that it is never taken for the new
    /// one. kUnexpected: it cannot be created there.
    virtual Result create() noexcept = 0;

    /// Adds what a folder holds; `mode` is kRecursiveRelative. Progress may be null. kFalse when the user
    /// cancelled; kUnexpected when something cannot be read, or did not come about whole when it was copied
    /// or written there. Nothing is written by `flush` after either.
    virtual Result addFolder(Text folder, std::int32_t mode, IProgress* progress) noexcept = 0;

    /// Writes what was added. Progress may be null. kFalse when the user cancelled; kUnexpected when reading
    /// or writing failed, or a source changed meanwhile. The archive appears under its name only when all of
    /// it is written.
    virtual Result flush(IProgress* progress) noexcept = 0;

    /// Ends the work; what was not flushed is dropped and leaves no file.
    virtual Result close() noexcept = 0;
};

struct IPackageHandler : IObject {
    static constexpr Uid kUid = uid("77af9f7e-fe1f-4b0a-8557-8c4de91e4bff");

    /// Makes a package of a type (kZipPackage) for a file location, handed over. Nothing is written yet.
    /// kInvalidArgument: an unknown type, or no file location.
    virtual Result createPackage(const Uid& type, Text url, IPackage** out) noexcept = 0;
};

} // namespace xbr

/// Answers the one package handler. Never null.
XBR_API xbr::IPackageHandler* XBRGetPackageHandler() noexcept;
