#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// A kind of file.
struct IFileType : IObject {
    static constexpr Uid kUid = uid("8c64f4ab-de19-4533-971f-124d6e9c8b2b");

    /// The usual extension without its dot, in lower case unless it was made otherwise ("wav").
    virtual Text extension() const noexcept = 0;
    virtual Text mimeType() const noexcept = 0;    ///< empty when unknown
    virtual Text description() const noexcept = 0; ///< for people, in their language; may be empty
};

/// Takes files and URLs that the host is asked to open.
struct IFileHandler : IObject {
    static constexpr Uid kUid = uid("ba386f83-1b00-4b95-9c32-11320b340fe0");

    /// True when the handler took the URL, whatever came of it.
    virtual bool openUrl(Text url) noexcept = 0;
};

/// Knows file types, and who opens what.
struct IFileTypeRegistry : IObject {
    static constexpr Uid kUid = uid("19848f3d-d02a-4810-a7c5-f7617e95582e");

    /// The known type of an extension (without dot, any case), handed over; kFalse and null when unknown.
    virtual Result getTypeByExtension(Text extension, IFileType** out) noexcept = 0;

    /// The known type of a MIME type, handed over; kFalse and null when unknown.
    virtual Result getTypeByMimeType(Text mimeType, IFileType** out) noexcept = 0;

    /// A type made from an extension alone, handed over.
    virtual Result createType(Text extension, IFileType** out) noexcept = 0;

    /// Offers `handler` every URL that is opened, kept until removed. kFalse when it is there already.
    virtual Result addHandler(IFileHandler* handler) noexcept = 0;
    virtual Result removeHandler(IFileHandler* handler) noexcept = 0;

    /// Offers a URL to the handlers in turn; true when one took it.
    virtual bool openUrl(Text url) noexcept = 0;
};

} // namespace xbr

/// Answers the one file-type registry. Never null.
XBR_API xbr::IFileTypeRegistry* XBRGetFileTypeRegistry() noexcept;
