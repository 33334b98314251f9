#pragma once

#include <string>
#include <string_view>

namespace xbr::host {

/// What a fragment of HTML says, as plain text; whatever the fragment is, something comes out, in time that
/// grows with its length only. Nothing that it refers to is fetched.
std::string plainTextOfHtml(std::string_view html);

} // namespace xbr::host
