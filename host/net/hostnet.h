#pragma once

#include "host/net/http/exchange.h"

#include <chrono>
#include <cstdint>

/// Set-up functions of libxbrnet for the host program. Modules never use them. All on the main thread.
namespace xbr::host {

/// Ends all requests and downloads in flight: no handler is called afterwards, and handlers are released
/// before this returns. Call it before a module is unloaded and before the program ends; it runs by itself
/// when the QCoreApplication is destroyed. New requests may be sent afterwards.
__attribute__((visibility("default"))) void abortAllRequests();

/// Aborts the requests in flight that carry a body with credentials, which are the uploads of modules. Their
/// handlers hear "onabort" later, and what was told of them says how far they came.
__attribute__((visibility("default"))) void abortUploads();

/// Lets requests and downloads stand still, and go on again: while a call of a module waits for something
/// that the module does not expect to run the event loop, nothing is reported.
__attribute__((visibility("default"))) void holdRequests(bool isHeld);

/// How long a request may pass without a byte in either direction before it fails. Applies to requests sent
/// afterwards; 60 seconds at the start. Time during which the event loop does not run is not counted.
__attribute__((visibility("default"))) void setIdleLimit(std::chrono::milliseconds limit);

/// Names who hears of requests from now on (null: nobody); not kept. Downloads and requests of the library
/// itself are not told of.
__attribute__((visibility("default"))) void setExchangeListener(ExchangeListener* listener);

} // namespace xbr::host
