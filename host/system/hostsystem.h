#pragma once

#include "host/system/files/backgroundwork.h"  // setWorkProgress
#include "host/system/files/fileproblem.h"     // setFileProblemListener
#include "host/system/files/temporaryfolder.h" // removeTemporaryFolder
#include "host/system/systemshell.h"           // BrowserAnnouncer

#include <functional>

/// What the host program sets up in this library. Modules never use it.
namespace xbr::host {

/// Replaces the announcer; an empty function removes it. Main thread.
[[gnu::visibility("default")]] void setBrowserAnnouncer(BrowserAnnouncer announcer);

/// Replaces who hears that a browser has failed; an empty function removes it. Main thread.
[[gnu::visibility("default")]] void setBrowserProblemListener(BrowserProblemListener listener);

/// Drops every message that is posted and not delivered yet. Main thread; to be called before a module's
/// library is closed, because messages that it made are code and data of that library.
[[gnu::visibility("default")]] void dropPostedMessages() noexcept;

/// Holds back what is posted while a call of a module waits for something that the module does not expect to
/// run the event loop, and lets it go again. Main thread.
[[gnu::visibility("default")]] void holdPostedMessages(bool isHeld);

/// True while a message is posted and not delivered, or its delivery has not come back. Main thread.
[[gnu::visibility("default")]] bool hasPostedMessages() noexcept;

/// Is told, from the event loop, when the last posted message was delivered; an empty function ends it. Main
/// thread.
[[gnu::visibility("default")]] void setQuietListener(std::function<void()> listener);

} // namespace xbr::host
