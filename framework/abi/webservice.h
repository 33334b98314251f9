#pragma once

#include "framework/abi/message.h"
#include "framework/abi/stream.h"

namespace xbr {

/// Who a request is sent for. What was set cannot be read back.
struct IWebCredentials : IObject {
    static constexpr Uid kUid = uid("fd319ec0-926c-4402-9e03-5c73064605de");

    /// With the scheme "Bearer" a request carries the header "Authorization: Bearer <password>" (RFC 6750),
    /// with "Basic" user name and password (RFC 7617). kInvalidArgument: another scheme, or a control
    /// character in the password.
    virtual Result set(Text userName, Text password, Text scheme) noexcept = 0;
};

/// One asynchronous HTTP request. One-shot: after completion it can be read, not sent again.
///
/// Completion comes exactly once, from the event loop, never inside `send`: as the message "onloadend"
/// (finished; the status is 0 when no complete answer came) or "onabort" (aborted). While the body goes out,
/// "onprogress" comes with the fraction as its argument. Releasing the last reference ends the request
/// without a message.
struct IWebRequest : IObject {
    static constexpr Uid kUid = uid("a883120c-7b3b-40f7-bacc-16c0a8950a8b");

    /// Names method and URL (http or https, without user name and password; kInvalidArgument otherwise).
    /// Credentials may be null; they are sent to this URL's server only, and such a request follows no
    /// redirect.
    virtual Result open(Text method, Text url, IWebCredentials* credentials) noexcept = 0;

    /// Adds a header. kInvalidArgument: not a header name, a control character in the value, or a header that
    /// the transport sets itself (Content-Length, Host, ...).
    virtual Result setHeader(Text name, Text value) noexcept = 0;

    /// Starts the request. The body (may be null) is read from its position to its end, and kept; the handler
    /// is kept until completion. kUnexpected: not opened, or sent already.
    virtual Result send(IStream* body, IObserver* handler) noexcept = 0;

    /// Ends a request in flight; it is not busy when this returns, "onabort" follows. kFalse: not in flight.
    virtual Result abort() noexcept = 0;

    virtual bool isBusy() const noexcept = 0;

    /// The HTTP status; 0 before "onloadend" and when no complete answer came.
    virtual std::int32_t status() const noexcept = 0;

    /// The answer's body at its start, handed over: the same stream each time. kFalse and null when it is
    /// empty.
    virtual Result getResponseBody(IStream** out) noexcept = 0;

    /// After status 0, why no answer came, in plain words and without secrets; otherwise empty.
    virtual Result getErrorText(IString** out) noexcept = 0;
};

struct IWebService : IObject {
    static constexpr Uid kUid = uid("7ef20f48-d9b2-4fa0-b63c-722dc55af6ec");

    virtual Result createCredentials(IWebCredentials** out) noexcept = 0;
    virtual Result createRequest(IWebRequest** out) noexcept = 0;
};

} // namespace xbr

/// Answers the one web service. Never null.
XBR_API xbr::IWebService* XBRGetWebService() noexcept;
