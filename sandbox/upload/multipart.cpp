#include "sandbox/upload/multipart.h"

#include "sandbox/http/text.h"
#include "sandbox/upload/refusal.h"

#include <algorithm>
#include <functional>
#include <map>

namespace sandbox {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLongestBoundary = 70;
constexpr std::size_t kLongestHeaders = 8192;

using Fields = std::map<std::string, std::string>;

[[noreturn]] void refuseMultipart(const std::string& why) {
    throw Refusal(400, "multipart body: " + why);
}

bool isTokenChar(char c) {
    constexpr std::string_view kSpecials = "!#$%&'*+-.^_`|~";
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           kSpecials.find(c) != std::string_view::npos;
}

bool isBoundaryChar(char c) {
    constexpr std::string_view kSpecials = "'()+_,-./:=? ";
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           kSpecials.find(c) != std::string_view::npos;
}

std::string_view afterBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view takeToken(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isTokenChar);
    const auto token = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    if (token.empty()) {
        refuseMultipart("a header value is malformed");
    }
    text.remove_prefix(token.size());
    return token;
}

std::string takeQuoted(std::string_view& text) {
    std::string value;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return value;
        }
        if (text[i] == '\\' && i + 1 < text.size()) {
            ++i;
        }
        value += text[i];
    }
    refuseMultipart("a quoted text has no end");
}

// `value; name=value; name="value"`: the first value goes to `main`, the rest is returned by lower-case name.
Fields splitParameters(std::string_view text, std::string& main) {
    const auto end = text.find(';');
    main = lowerAscii(text.substr(0, end));
    main.erase(main.find_last_not_of(" \t") + 1);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end);
    Fields fields;
    while (!text.empty()) {
        if (text.front() != ';') {
            refuseMultipart("a header's parameters are not separated by ';'");
        }
        text = afterBlanks(text.substr(1));
        auto name = lowerAscii(takeToken(text));
        if (text.empty() || text.front() != '=') {
            refuseMultipart("a header's parameter has no value");
        }
        text.remove_prefix(1);
        auto value = !text.empty() && text.front() == '"' ? takeQuoted(text) : std::string(takeToken(text));
        if (!fields.emplace(std::move(name), std::move(value)).second) {
            refuseMultipart("a header's parameter comes twice");
        }
        text = afterBlanks(text);
    }
    return fields;
}

void addHeader(Fields& headers, std::string_view line) {
    const auto colon = line.find(':');
    if (colon == std::string_view::npos || colon == 0 ||
        !std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(colon), isTokenChar)) {
        refuseMultipart("a part header is malformed");
    }
    const auto value = afterBlanks(line.substr(colon + 1));
    if (std::any_of(value.begin(), value.end(),
                    [](char c) { return static_cast<unsigned char>(c) < 0x20; })) {
        refuseMultipart("a part header holds control characters");
    }
    if (!headers.emplace(lowerAscii(line.substr(0, colon)), value).second) {
        refuseMultipart("a part header comes twice");
    }
}

// Reads the header lines at the front of `text` and returns the length of all, with the empty line.
std::size_t readHeaders(std::string_view text, Fields& headers) {
    std::size_t at = 0;
    for (;;) {
        const auto end = text.substr(0, kLongestHeaders).find(kLineEnd, at);
        if (end == std::string_view::npos) {
            refuseMultipart("the part's headers have no end");
        }
        if (end == at) {
            return end + kLineEnd.size();
        }
        addHeader(headers, text.substr(at, end - at));
        at = end + kLineEnd.size();
    }
}

std::string headerOr(const Fields& headers, const std::string& name, const std::string& otherwise) {
    const auto found = headers.find(name);
    return found == headers.end() ? otherwise : lowerAscii(found->second);
}

FilePart describePart(const Fields& headers) {
    const auto found = headers.find("content-disposition");
    if (found == headers.end()) {
        refuseMultipart("the part has no Content-Disposition");
    }
    std::string kind;
    auto parameters = splitParameters(found->second, kind);
    if (kind != "form-data") {
        refuseMultipart("the part's Content-Disposition is not form-data");
    }
    if (headerOr(headers, "content-transfer-encoding", "binary") != "binary") {
        refuseMultipart("the part's Content-Transfer-Encoding is not binary");
    }
    return {.name = parameters["name"], .filename = parameters["filename"]};
}

// Where the first delimiter after the contents begins. Uploads are large and delimiters long, so it is
// worth a search that skips.
std::size_t findDelimiter(std::string_view body, std::size_t from, const std::string& delimiter) {
    const std::boyer_moore_horspool_searcher searcher(delimiter.begin(), delimiter.end());
    const auto found = std::search(body.begin() + static_cast<std::ptrdiff_t>(from), body.end(), searcher);
    if (found == body.end()) {
        refuseMultipart("the closing delimiter is missing");
    }
    return static_cast<std::size_t>(found - body.begin());
}

} // namespace

std::string boundaryOf(std::string_view contentType) {
    std::string type;
    auto parameters = splitParameters(contentType, type);
    if (type != "multipart/form-data") {
        refuseMultipart("the content type is not multipart/form-data");
    }
    auto boundary = parameters["boundary"];
    if (boundary.empty() || boundary.size() > kLongestBoundary || boundary.back() == ' ' ||
        !std::all_of(boundary.begin(), boundary.end(), isBoundaryChar)) {
        refuseMultipart("the content type names no proper boundary");
    }
    return boundary;
}

FilePart parseSinglePart(std::string_view boundary, std::string_view body) {
    const auto opening = "--" + std::string(boundary) + "\r\n";
    if (!body.starts_with(opening)) {
        refuseMultipart("it does not begin with its delimiter line");
    }
    Fields headers;
    const auto start = opening.size() + readHeaders(body.substr(opening.size()), headers);
    auto part = describePart(headers);
    // The delimiter's line break may be the one that ends the headers: an empty part.
    const auto delimiter = "\r\n--" + std::string(boundary);
    const auto end = findDelimiter(body, start - kLineEnd.size(), delimiter);
    const auto rest = body.substr(end + delimiter.size());
    if (rest.starts_with(kLineEnd)) {
        refuseMultipart("it has more than one part");
    }
    if (rest != "--" && rest != "--\r\n") {
        refuseMultipart("its closing delimiter is malformed or text follows it");
    }
    part.offset = start;
    part.length = end < start ? 0 : end - start;
    return part;
}

} // namespace sandbox
