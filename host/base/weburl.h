#pragma once

#include <string_view>

class QUrl;

namespace xbr::host {

/// True for an http or https address with a host: what a browser opens and a request can be sent to. One with
/// a user name in it is none: it looks like another host than it leads to.
bool isWebAddress(const QUrl& url);
bool isWebAddress(std::string_view url);

} // namespace xbr::host
