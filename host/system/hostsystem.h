#pragma once

#include "host/system/files/backgroundwork.h"  // setWorkProgress
#include "host/system/files/fileproblem.h"     // setFileProblemListener
#include "host/system/files/temporaryfolder.h" // removeTemporaryFolder

#include <functional>
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

} // namespace xbr::host
