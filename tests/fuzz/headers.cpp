#include "host/net/download/downloadrules.h"
#include "host/net/http/reply.h"
#include "tests/fuzz/fuzz.h"

namespace {

using xbr::host::ReplyHeaders;

constexpr std::string_view kFrom = "https://news.example/feed/atom.xml";

} // namespace

/// The headers of an answer, line by line, and what is done because of them.
void fuzz::read(std::string_view input) {
    xbr::host::Reply reply;
    while (!input.empty()) {
        reply.addHeaderLine(std::string(takeLine(input)) + '\n');
    }
    const ReplyHeaders& headers = reply.headers();
    const auto policy =
        xbr::host::cachePolicy(headers[ReplyHeaders::kCacheControl], headers[ReplyHeaders::kAge]);
    expect(policy.lifetime >= -1);
    const auto target = xbr::host::redirectTarget(kFrom, headers[ReplyHeaders::kLocation]);
    expect(!target ||
           (target->starts_with("https://") && target->find_first_of(" \r\n") == std::string::npos));
}
