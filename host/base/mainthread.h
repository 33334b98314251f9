#pragma once

namespace xbr::host {

/// Ends a debug build that calls from another thread than the main one: the thread of the QCoreApplication,
/// or before there is one the thread that called here first. Does nothing in a release build.
void assertMainThread() noexcept;

} // namespace xbr::host
