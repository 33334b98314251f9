#include "sandbox/visitor.h"

#include "sandbox/http/text.h"

#include <curl/curl.h>

#include <memory>

namespace sandbox {
namespace {

constexpr long kPatience = 60; // seconds
constexpr std::size_t kLargestPage = 1U << 20U;
constexpr long kShown = 200;
constexpr std::string_view kLeadsTo = "url=";

using Handle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using Url = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

std::string partOf(const Url& url, CURLUPart part) {
    char* text = nullptr;
    if (curl_url_get(url.get(), part, &text, 0) != CURLUE_OK) {
        return {};
    }
    const std::unique_ptr<char, decltype(&curl_free)> owned(text, curl_free);
    return text;
}

Url parse(const std::string& text) {
    Url url(curl_url(), curl_url_cleanup);
    if (curl_url_set(url.get(), CURLUPART_URL, text.c_str(), 0) != CURLUE_OK) {
        url.reset();
    }
    return url;
}

struct Page {
    long status = 0;
    std::string refresh; // where it leads by itself, byte for byte as sent
    std::string body;
};

std::size_t takeBody(const char* bytes, std::size_t size, std::size_t count, void* target) {
    auto& body = *static_cast<std::string*>(target);
    body.append(bytes, size * count);
    return body.size() > kLargestPage ? 0 : size * count;
}

// Gets a page, or posts `form` when it is not empty.
Page fetch(const std::string& url, const std::string& form = {}) {
    const Handle handle(curl_easy_init(), curl_easy_cleanup);
    Page page;
    curl_easy_setopt(handle.get(), CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle.get(), CURLOPT_PROXY, "");
    curl_easy_setopt(handle.get(), CURLOPT_TIMEOUT, kPatience);
    curl_easy_setopt(handle.get(), CURLOPT_WRITEFUNCTION, takeBody);
    curl_easy_setopt(handle.get(), CURLOPT_WRITEDATA, &page.body);
    if (!form.empty()) {
        curl_easy_setopt(handle.get(), CURLOPT_COPYPOSTFIELDS, form.c_str());
    }
    if (const auto result = curl_easy_perform(handle.get()); result != CURLE_OK) {
        throw VisitError(std::string("the server does not answer: ") + curl_easy_strerror(result));
    }
    curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &page.status);
    curl_header* refresh = nullptr;
    if (curl_easy_header(handle.get(), "Refresh", 0, CURLH_HEADER, -1, &refresh) == CURLHE_OK) {
        const std::string_view value = refresh->value;
        const auto start = value.find(kLeadsTo);
        page.refresh = start == std::string_view::npos ? "" : value.substr(start + kLeadsTo.size());
    }
    return page;
}

// What the consent page has been given for those who signed in; base64, so nothing in it is escaped.
std::string ticketOf(const Page& page) {
    constexpr std::string_view kField = "name=\"ticket\" value=\"";
    const auto start = page.body.find(kField);
    if (page.status != kShown || start == std::string::npos) {
        throw VisitError("the sign-in was refused (status " + std::to_string(page.status) + ")");
    }
    const auto value = start + kField.size();
    return page.body.substr(value, page.body.find('"', value) - value);
}

} // namespace

bool isOfThisComputer(const std::string& url) {
    const auto parsed = parse(url);
    if (!parsed || partOf(parsed, CURLUPART_SCHEME) != "http" || !partOf(parsed, CURLUPART_USER).empty()) {
        return false;
    }
    const auto host = lowerAscii(partOf(parsed, CURLUPART_HOST));
    return host == "127.0.0.1" || host == "localhost" || host == "[::1]";
}

std::string Visitor::authorize(const std::string& url) const {
    if (!isOfThisComputer(url)) {
        throw VisitError("only http addresses of this computer are opened (127.0.0.1, localhost, [::1])");
    }
    if (const auto page = fetch(url); page.status != kShown) {
        throw VisitError("the page cannot be used (status " + std::to_string(page.status) + ")");
    }
    // The pages' hidden fields are those of the query; a form is encoded like one.
    const auto parsed = parse(url);
    const auto fields = partOf(parsed, CURLUPART_QUERY) + "&decision=";
    const auto consent = fetch(url, fields + "sign-in&email=" + percentEncode(m_user) +
                                        "&password=" + percentEncode(m_password));
    const auto decision = m_allows ? "allow" : "deny";
    const auto end = fetch(url, fields + decision + "&ticket=" + percentEncode(ticketOf(consent)));
    if (end.status != kShown || end.refresh.find("://") == std::string::npos || parse(end.refresh)) {
        throw VisitError("the pages do not lead to the program (status " + std::to_string(end.status) + ")");
    }
    return end.refresh;
}

} // namespace sandbox
