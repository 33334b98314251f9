#pragma once

#include "framework/abi/stream.h"
#include "framework/abi/text.h"

namespace xbr {

/// How far a download is. The numbers are what properties named "downloadState" hold.
enum class DownloadState : std::int32_t {
    kIdle = 0,     ///< not started, or cancelled
    kRunning = 1,  ///< waits for its turn or is under way
    kComplete = 2, ///< the whole document is there, or the copy that the caller has is still good
    kFailed = 3,   ///< no whole document came
};

/// What a server said about keeping a copy of its document (RFC 9110, section 8.8; RFC 9111,
/// section 5.2.2.5).
struct CopyTerms {
    Text entityTag;    ///< as it was sent, with its quotes; empty for none
    Text lastModified; ///< as it was sent; empty for none
    bool mayBeKept;    ///< false: the copy must not be kept beyond the process
};

/// One asynchronous download of a document that anybody may see. One-shot.
///
/// The document is asked for with GET, and nothing that identifies the user is sent: no credentials, no
/// cookies. Redirects are followed; those of an https URL only to https. A document of more than 8 MiB fails,
/// and so does one that comes too slowly, so that others get their turn.
///
/// A task is also an ISubject: "stateChanged" comes from the event loop, never inside `start`, when the task
/// is complete or has failed. Releasing the last reference ends the download without a message.
struct IDownloadTask : IObject {
    static constexpr Uid kUid = uid("703adb1f-8c89-4cf7-8ad6-7ce8b66b3bb4");

    /// Says which copy the caller has: the document is delivered only when it has changed (RFC 9110, section
    /// 13). Either text may be empty. kInvalidArgument: a control character in one of them; kUnexpected:
    /// started already.
    virtual Result setCopy(Text entityTag, Text lastModified) noexcept = 0;

    /// Starts the download; it may have to wait until others are through. kUnexpected: started already.
    virtual Result start() noexcept = 0;

    /// Ends the download; no message follows. kFalse: it is not running.
    virtual Result cancel() noexcept = 0;

    virtual DownloadState state() const noexcept = 0;

    /// Where the document was found: the task's URL, or the last one that it was redirected to.
    virtual Text location() const noexcept = 0;

    /// The media type that the server declared, with its parameters; empty when it declared none.
    virtual Text mimeType() const noexcept = 0;

    /// The document at its start, handed over: the same stream each time. It may be empty. kFalse and null
    /// when there is none: not complete, or unchanged since the caller's copy.
    virtual Result getData(IStream** out) noexcept = 0;

    /// What the server said about keeping a copy; of a task that is not complete, nothing.
    virtual CopyTerms copyTerms() const noexcept = 0;
};

/// Makes download tasks; asked of the web service.
struct IDownloadService : IObject {
    static constexpr Uid kUid = uid("ad9dee8f-77df-4123-a9ba-7b725e96c3ea");

    /// Makes a task for a URL: http or https without user name and password, or a file or resource URL, which
    /// is read from the file system. kInvalidArgument: any other URL.
    virtual Result createTask(Text url, IDownloadTask** out) noexcept = 0;
};

} // namespace xbr
