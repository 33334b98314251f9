#pragma once

#include "framework/abi/value.h"

namespace xbr {

/// A named message with arguments, for example "onprogress" with the fraction as its first argument.
struct IMessage : IObject {
    static constexpr Uid kUid = uid("d1c0a9d3-de57-4dcf-9f00-f96d74f0b115");

    virtual Text name() const noexcept = 0;
    virtual std::int32_t countArguments() const noexcept = 0;

    /// Argument `index`; a value of kind kNone beyond the last.
    virtual Value argument(std::int32_t index) const noexcept = 0;
};

/// Something that sends messages. Carries no operation of its own: it is the identity under which observers
/// find a sender, compared as this pointer.
struct ISubject : IObject {
    static constexpr Uid kUid = uid("fdc4f6ee-1f92-483d-80f0-ea579571d204");
};

/// Something that receives messages.
struct IObserver : IObject {
    static constexpr Uid kUid = uid("8b2b2c04-8902-4d4a-b277-3a1fe14688e5");

    /// A message of `subject`; null when it was posted to this observer without a sender.
    virtual void notify(ISubject* subject, IMessage* message) noexcept = 0;
};

/// Carries messages from subjects to their observers.
///
/// Observers and subjects are not kept: each one calls `forget` before it dies, at the latest in its
/// destructor. While a message is delivered the receiver is retained, and observers may come and go: one that
/// was added during a delivery does not get that message, one that was removed does not get it either.
struct ISignalHandler : IObject {
    static constexpr Uid kUid = uid("2cac9ea4-cdee-4c66-a53f-170d39751a5a");

    /// Lets `observer` receive the messages of `subject`, in the order of these calls. A second call for the
    /// same pair is kFalse.
    virtual Result addObserver(ISubject* subject, IObserver* observer) noexcept = 0;

    /// kFalse when there was no such pair.
    virtual Result removeObserver(ISubject* subject, IObserver* observer) noexcept = 0;

    /// Delivers `message` to the observers of `subject` before it returns.
    virtual void signal(ISubject* subject, IMessage* message) noexcept = 0;

    /// Keeps `message` and delivers it to the observers of `subject` from the event loop, after the current
    /// handler has returned and in the order of the calls.
    virtual void postSignal(ISubject* subject, IMessage* message) noexcept = 0;

    /// Keeps `message` and delivers it to `observer` from the event loop, after the current handler has
    /// returned. `delay` is in milliseconds; 0 and the negative value -1 mean "in the order of the calls,
    /// with the next turn of the loop".
    virtual void post(IObserver* observer, IMessage* message, std::int32_t delay) noexcept = 0;

    /// Removes `observer` everywhere and drops what is posted to it.
    virtual void forgetObserver(IObserver* observer) noexcept = 0;

    /// Removes all observers of `subject` and drops its posted signals.
    virtual void forgetSubject(ISubject* subject) noexcept = 0;
};

} // namespace xbr

/// Answers the one signal handler. Never null.
XBR_API xbr::ISignalHandler* XBRGetSignalHandler() noexcept;
