#include "host/net/http/requesturl.h"

#include "host/base/textscan.h"

#include <curl/curl.h>

#include <memory>

namespace xbr::host {

namespace {

using Url = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

/// A part of the URL; empty when it is not there.
std::string partOf(const Url& url, CURLUPart part) {
    char* text = nullptr;
    if (curl_url_get(url.get(), part, &text, 0) != CURLUE_OK) {
        return {};
    }
    std::string result(text);
    curl_free(text);
    return result;
}

} // namespace

std::optional<std::string> requestHost(std::string_view url) {
    const Url parsed(curl_url(), &curl_url_cleanup);
    if (!parsed || hasControls(url) ||
        curl_url_set(parsed.get(), CURLUPART_URL, std::string(url).c_str(), 0) != CURLUE_OK) {
        return {};
    }
    const std::string scheme = partOf(parsed, CURLUPART_SCHEME);
    std::string host = partOf(parsed, CURLUPART_HOST);
    const bool usable = (scheme == "http" || scheme == "https") && !host.empty() &&
                        partOf(parsed, CURLUPART_USER).empty() && partOf(parsed, CURLUPART_PASSWORD).empty();
    return usable ? std::optional(std::move(host)) : std::nullopt;
}

} // namespace xbr::host
