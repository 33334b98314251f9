#include "sandbox/http/exchange.h"

#include "sandbox/http/text.h"

namespace sandbox {

std::string RequestHead::header(std::string_view name) const {
    const auto wanted = lowerAscii(name);
    for (const auto& field : headers) {
        if (lowerAscii(field.first) == wanted) {
            return field.second;
        }
    }
    return {};
}

bool RequestHead::has(std::string_view name) const {
    const auto wanted = lowerAscii(name);
    for (const auto& field : headers) {
        if (lowerAscii(field.first) == wanted) {
            return true;
        }
    }
    return false;
}

Reply jsonReply(int status, std::string body) {
    return {.status = status, .contentType = "application/json", .body = std::move(body), .headers = {}};
}

Reply textReply(int status, std::string body) {
    return {
        .status = status, .contentType = "text/plain; charset=utf-8", .body = std::move(body), .headers = {}};
}

Reply htmlReply(int status, std::string body) {
    return {
        .status = status, .contentType = "text/html; charset=utf-8", .body = std::move(body), .headers = {}};
}

bool readText(Exchange& exchange, std::size_t limit, std::string& text) {
    return exchange.readBody([&](std::string_view bytes) {
        if (text.size() + bytes.size() > limit) {
            return false;
        }
        text += bytes;
        return true;
    });
}

} // namespace sandbox
