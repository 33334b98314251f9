#include "host/net/download/downloadtask.h"
#include "host/net/http/reply.h"
#include "tests/fuzz/fuzz.h"

/// The headers of an answer, line by line, and what is done because of them.
void fuzz::read(std::string_view input) {
    xbr::host::Reply reply;
    while (!input.empty()) {
        reply.addHeaderLine(std::string(takeLine(input)) + '\n');
    }
    for (int name = 0; name < xbr::host::ReplyHeaders::kNames; ++name) {
        const auto& value = reply.headers()[static_cast<xbr::host::ReplyHeaders::Name>(name)];
        expect(value.empty() || value.find('\n') == std::string::npos);
    }
    const auto& control = reply.headers()[xbr::host::ReplyHeaders::kCacheControl];
    expect(xbr::host::mayBeKept(control) || control.size() >= std::string_view("no-store").size());
}
