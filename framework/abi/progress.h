#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// Receives the progress of long work and tells whether the user wants it to end.
struct IProgress : IObject {
    static constexpr Uid kUid = uid("e906653f-8370-422d-aa70-062d70329c79");

    /// Reports the fraction done and what is being worked on. May run the event loop: anything can happen in
    /// there except for user input outside the indicator.
    virtual void update(double fraction, Text what) noexcept = 0;

    virtual bool isCancelled() noexcept = 0;
};

/// Shows progress to the user; created by class UID. Also an IProgress.
struct IProgressIndicator : IObject {
    static constexpr Uid kUid = uid("2aa49067-5a74-4f02-84ed-fe6cdea7243a");
    static constexpr Uid kClassUid = uid("72a42260-2ab2-4d88-aa3f-3835c34696ab");

    virtual void setTitle(Text title) noexcept = 0;

    /// 1: the user may cancel. 0 (the default): the work cannot be cancelled.
    virtual void setOption(std::int32_t option) noexcept = 0;

    virtual void begin() noexcept = 0;

    /// Takes the indicator off the screen; further calls do nothing.
    virtual void end() noexcept = 0;
};

} // namespace xbr
