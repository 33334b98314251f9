#pragma once

/// The border: the contract between a host and its modules.
///
/// Interfaces and nothing but interfaces cross it. This file holds the grammar that every comment of the
/// border follows, and the border's version.
///
/// ## Grammar of the comments
///
/// - Thread: every method is called on the host's user-interface thread ("the main thread") and calls out on
///   that thread only. A method that may be called elsewhere says so with [any thread].
/// - Text in is UTF-8 as a pointer and a length (`Text`). It is never zero-terminated, may hold any byte, and
///   is read during the call only; the callee copies what it keeps. A null pointer with length 0 is the empty
///   text.
/// - Text out is a counted `IString`, except for names and values of an object's own: these are answered as
///   `Text` and stay valid until the next call into the object that answered them.
/// - Objects in are borrowed for the call. Who keeps one retains it ("kept").
/// - Objects out through a `T** out` are handed over: the caller releases them. On failure *out is null.
///   Objects answered as a plain return value are borrowed and live as long as the object that answered.
/// - `Result` is 0 for success. kFalse is a success with the meaning "no" or "nothing". A method's comment
///   names the failures that a caller can act upon; any method may answer kUnexpected when it is called in
///   the wrong state and kInvalidArgument for arguments outside the documented range, and then changes
///   nothing.
/// - No exception crosses the border; running out of memory ends the process.
/// - Units: sizes and positions are bytes; times are seconds since 1970-01-01T00:00:00Z; widths are points
///   (1/72 inch at scale 1); fractions run from 0.0 to 1.0.
/// - Locations are URLs as text (RFC 3986): "file:///..." for local files, percent-encoded UTF-8;
///   "resource://<module>/<path>" for what a module carries with it.
///
/// A released interface never changes; new needs get a new interface with a new UID.

#include <cstdint>

namespace xbr {

/// Version of the border: major in the upper, minor in the lower 16 bits. Host and module refuse each other
/// when the major differs; a higher minor only adds interfaces.
constexpr std::uint32_t kBorderVersion = 0x0001'0000;

constexpr std::uint32_t borderMajor(std::uint32_t version) {
    return version >> 16U;
}

} // namespace xbr

/// Marks a function that one side exports and the other side links or looks up by name.
#ifdef _WIN32
#define XBR_API extern "C" __declspec(dllexport)
#else
#define XBR_API extern "C" __attribute__((visibility("default")))
#endif
