#include "host/net/http/reply.h"

#include "framework/support/objects/text.h"
#include "host/base/textscan.h"
#include "host/net/http/request.h"

#include <curl/curl.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <ctime>

namespace xbr::host {

namespace {

constexpr std::array<std::string_view, ReplyHeaders::kNames> kHeaderNames = {
    "Cache-Control", "Content-Type", "ETag", "Last-Modified", "Retry-After"};

using Json = nlohmann::ordered_json;

constexpr std::uint64_t kWordsLimit = std::uint64_t{64}
                                      << 10U; ///< bytes of an answer that are read for words
constexpr std::size_t kWordsLength = 200;     ///< characters
constexpr int kDepth = 8;

/// Adds the texts of a value, whatever its form is: one, a list, or lists by the names of fields.
void addTexts(const Json& value, int depth, std::string& words) {
    if (value.is_string()) {
        words += (words.empty() ? "" : "; ") + value.get<std::string>();
    } else if (value.is_structured() && depth < kDepth) {
        for (const Json& part : value) {
            addTexts(part, depth + 1, words);
        }
    }
}

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

std::int64_t ReplyHeaders::secondsToWait() const {
    static constexpr std::int64_t kLongest = 86'400; // a day
    const std::string& text = m_values[kRetryAfter];
    std::int64_t seconds = -1;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (failed != std::errc() || end != text.data() + text.size()) {
        const std::time_t time = curl_getdate(text.c_str(), nullptr);
        seconds = time < 0 ? -1 : std::max<std::int64_t>(time - std::time(nullptr), 0);
    }
    return seconds > kLongest ? -1 : seconds;
}

bool Reply::addHeaderLine(std::string_view line) {
    if (line.starts_with("HTTP/")) {
        // What came before was an interim answer (RFC 9110, section 15.2).
        m_headersEnded = false;
    } else if (line == "\r\n" || line == "\n") {
        m_headersEnded = true;
    }
    m_headers.addLine(line);
    m_headerBytes += line.size();
    return m_headerBytes <= kHeaderLimit;
}

bool Reply::addBody(std::string_view bytes) {
    m_bodyBytes += bytes.size();
    if (m_bodyBytes > kBodyLimit) {
        return false;
    }
    if (!m_body) {
        m_body = make<MemoryStream>();
    }
    return m_body->write(bytes);
}

bool Reply::hasBodyOf(std::int64_t length) const noexcept {
    return m_headersEnded && length >= 0 &&
           (m_body ? m_body->size() : 0) == static_cast<std::uint64_t>(length);
}

Ref<MemoryStream> Reply::body() const {
    if (m_body) {
        rewind(*m_body);
    }
    return m_body;
}

std::string wordsOf(MemoryStream& body) {
    std::string bytes(std::min(body.size(), kWordsLimit), '\0');
    std::uint64_t done = 0;
    rewind(body);
    body.read(bytes.data(), bytes.size(), &done);
    rewind(body);
    const Json reply = Json::parse(bytes, nullptr, false);
    std::string words;
    for (const char* name : {"errors", "message"}) {
        if (words.empty() && reply.is_object() && reply.contains(name)) {
            addTexts(reply[name], 0, words);
        }
    }
    return std::string(firstCharacters(plainText(words), kWordsLength));
}

} // namespace xbr::host
