#pragma once

#include "framework/abi/progress.h"
#include "host/base/problem.h"

#include <functional>
#include <string>
#include <string_view>

/// What the host program sets up in this library. Modules never use it.
namespace xbr::host {

/// Is told the URL before a browser is started for it, so that a front end can show it. Answers true when the
/// user can reach the URL without that browser; opening it is a success then in any case.
using BrowserAnnouncer = std::function<bool(std::string_view url)>;

/// Replaces the announcer; an empty function removes it. Main thread.
[[gnu::visibility("default")]] void setBrowserAnnouncer(BrowserAnnouncer announcer);

/// Drops every message that is posted and not delivered yet. Main thread; to be called before a module's
/// library is closed, because messages that it made are code and data of that library.
[[gnu::visibility("default")]] void dropPostedMessages() noexcept;

/// True while a message is posted and not delivered, or its delivery has not come back. Main thread.
[[gnu::visibility("default")]] bool hasPostedMessages() noexcept;

/// Is told, from the event loop, when the last posted message was delivered; an empty function ends it. Main
/// thread.
[[gnu::visibility("default")]] void setQuietListener(std::function<void()> listener);

/// Names the indicator that the front end shows now, or none (null); not kept. Work that the border gives no
/// progress for, such as copying a file, tells it what is done and ends when the user cancels there. Main
/// thread.
[[gnu::visibility("default")]] void setWorkProgress(IProgress* progress);

/// Removes the temporary folder with everything in it, if this process made one. Happens by itself when the
/// process ends through exit(); a next request for the folder makes a new one. Main thread.
[[gnu::visibility("default")]] void removeTemporaryFolder() noexcept;

/// Hears of everything that modules could not read, write or copy, from within their calls; an empty function
/// ends it. Main thread.
[[gnu::visibility("default")]] void setFileProblemListener(std::function<void(const Problem&)> listener);

/// The first thing since the last call that modules could not write or copy, in plain words that name the
/// system's reason ("'/music/a.wav' cannot be copied: No space left on device"); empty when there was none.
/// Modules are silent about it: a front end asks when something that a module prepared did not come about.
/// Main thread.
[[gnu::visibility("default")]] std::string takeFileProblem();

} // namespace xbr::host
