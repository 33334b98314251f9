#include "host/net/http/replyheaders.h"

#include "framework/support/objects/text.h"
#include "host/net/http/request.h"

namespace xbr::host {

namespace {

constexpr std::array<std::string_view, ReplyHeaders::kNames> kHeaderNames = {
    "Age", "Cache-Control", "Content-Type", "ETag", "Last-Modified", "Location"};

} // namespace

void ReplyHeaders::addLine(std::string_view line) {
    if (line.starts_with("HTTP/")) {
        m_values = {};
        return;
    }
    const auto colon = line.find(':');
    for (std::size_t i = 0; colon != std::string_view::npos && i < kHeaderNames.size(); ++i) {
        if (isSameHeader(line.substr(0, colon), kHeaderNames[i])) {
            std::string& value = m_values[i];
            value += (value.empty() ? "" : ", ") + std::string(trim(line.substr(colon + 1)));
        }
    }
}

} // namespace xbr::host
