#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// The operating system, as far as modules need it.
struct ISystem : IObject {
    static constexpr Uid kUid = uid("3ebd9aa4-cb12-4a58-ba09-708d03e6ccdb");

    /// Seconds since 1970-01-01T00:00:00Z.
    virtual std::int64_t currentTime() const noexcept = 0;

    /// URL of a folder for temporary files that only this process and user can use; the host removes it with
    /// everything in it when it ends.
    virtual Result getTemporaryFolder(IString** out) noexcept = 0;

    /// Writes a line for developers. Users never see it; it never holds a secret.
    virtual void writeDebugWarning(Text message) noexcept = 0;
};

/// Opens things outside the host.
struct ISystemShell : IObject {
    static constexpr Uid kUid = uid("a93e0112-f7ef-4a46-a1cf-6899a94f1084");

    /// Opens a URL in the user's default web browser. kInvalidArgument: neither http nor https; kUnexpected:
    /// no browser could be started.
    virtual Result openUrl(Text url) noexcept = 0;
};

} // namespace xbr

/// Answers the one system object. Never null.
XBR_API xbr::ISystem* XBRGetSystem() noexcept;

/// Answers the one system shell. Never null.
XBR_API xbr::ISystemShell* XBRGetSystemShell() noexcept;
