#include "sandbox/webpage.h"

#include "sandbox/http/text.h"

#include <curl/curl.h>

#include <memory>
#include <stdexcept>
#include <string_view>

namespace sandbox {
namespace {

constexpr long kPatience = 60; // seconds
constexpr std::size_t kLargestPage = 1U << 20U;

std::size_t takeBody(const char* bytes, std::size_t size, std::size_t count, void* target) {
    auto& body = static_cast<WebPage*>(target)->body;
    body.append(bytes, size * count);
    return body.size() > kLargestPage ? 0 : size * count;
}

std::size_t takeHeader(const char* bytes, std::size_t size, std::size_t count, void* target) {
    constexpr std::string_view kName = "location:";
    const std::string_view line(bytes, size * count);
    if (lowerAscii(line.substr(0, kName.size())) == kName) {
        const auto first = line.find_first_not_of(" \t", kName.size());
        const auto last = line.find_last_not_of(" \t\r\n");
        static_cast<WebPage*>(target)->location = first <= last ? line.substr(first, last - first + 1) : "";
    }
    return line.size();
}

} // namespace

WebPage fetch(const std::string& url, const std::string& form) {
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle(curl_easy_init(), curl_easy_cleanup);
    if (!handle) {
        throw std::runtime_error("cannot prepare a request");
    }
    WebPage page;
    curl_easy_setopt(handle.get(), CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle.get(), CURLOPT_PROTOCOLS_STR, "http");
    curl_easy_setopt(handle.get(), CURLOPT_PROXY, "");
    curl_easy_setopt(handle.get(), CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(handle.get(), CURLOPT_TIMEOUT, kPatience);
    curl_easy_setopt(handle.get(), CURLOPT_WRITEFUNCTION, takeBody);
    curl_easy_setopt(handle.get(), CURLOPT_WRITEDATA, &page);
    curl_easy_setopt(handle.get(), CURLOPT_HEADERFUNCTION, takeHeader);
    curl_easy_setopt(handle.get(), CURLOPT_HEADERDATA, &page);
    if (!form.empty()) {
        curl_easy_setopt(handle.get(), CURLOPT_COPYPOSTFIELDS, form.c_str());
    }
    const auto result = curl_easy_perform(handle.get());
    if (result != CURLE_OK) {
        throw std::runtime_error(std::string("the server does not answer: ") + curl_easy_strerror(result));
    }
    curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &page.status);
    return page;
}

} // namespace sandbox
