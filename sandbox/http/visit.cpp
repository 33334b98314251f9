#include "sandbox/http/visit.h"

#include "sandbox/http/text.h"

#include <algorithm>
#include <array>

namespace sandbox {
namespace {

// Added by the library, not sent by anybody.
bool isMadeUp(const std::string& name) {
    constexpr std::array<std::string_view, 4> kNames = {"remote_addr", "remote_port", "local_addr",
                                                        "local_port"};
    return std::find(kNames.begin(), kNames.end(), lowerAscii(name)) != kNames.end();
}

bool isLength(const std::string& text) {
    return !text.empty() && text.size() < 19 && text.find_first_not_of("0123456789") == std::string::npos;
}

} // namespace

void Visit::begin(httplib::Request& request) {
    constexpr std::array<std::string_view, 6> kMethods = {"GET", "HEAD", "POST", "PUT", "PATCH", "DELETE"};
    noteHead(request);
    m_begun = true;
    m_hasBody = m_head.has("Transfer-Encoding") ||
                (m_head.has("Content-Length") && m_head.header("Content-Length") != "0");
    for (const auto* name : {"Content-Type", "Content-Encoding", "Accept-Encoding"}) {
        request.headers.erase(name);
    }
    request.ranges.clear();
    request.path = "/";
    if (std::find(kMethods.begin(), kMethods.end(), request.method) == kMethods.end()) {
        request.method = "OPTIONS"; // the library has a handler for it, and none for the odd ones
    }
    m_connection.headDone();
}

void Visit::noteHead(const httplib::Request& request) {
    m_head.method = request.method;
    m_head.path = request.path;
    const auto question = request.target.find('?');
    m_head.query = question == std::string::npos ? "" : request.target.substr(question + 1);
    for (const auto& [name, value] : request.headers) {
        if (!isMadeUp(name)) {
            m_head.headers.emplace_back(name, value);
        }
    }
}

std::string Visit::bodyFault() const {
    const auto coding = m_head.header("Transfer-Encoding");
    const auto length = m_head.header("Content-Length");
    if (m_head.has("Content-Encoding")) {
        return "a body must not be encoded";
    }
    if (m_head.has("Transfer-Encoding") &&
        (m_head.has("Content-Length") || lowerAscii(coding) != "chunked")) {
        return "the body's length is ambiguous";
    }
    if (m_head.has("Content-Length") && !isLength(length)) {
        return "Content-Length is not a length";
    }
    const bool needsLength = m_head.method == "POST" || m_head.method == "PUT" || m_head.method == "PATCH";
    return needsLength && !m_head.has("Content-Length") && !m_hasBody ? "Content-Length is missing" : "";
}

bool Visit::readBody(const BodySink& sink) {
    if (m_read || !m_hasBody || m_reader == nullptr || isReset()) {
        return bodyComplete();
    }
    m_read = true;
    m_complete = (*m_reader)([&](const char* bytes, std::size_t size) {
        m_bodyBytes += size;
        return sink(std::string_view(bytes, size));
    });
    return m_complete;
}

bool Visit::isReusable() const {
    return m_begun && bodyComplete() && !m_cut && !isReset();
}

void Visit::deliver(const Reply& reply, httplib::Response& response) {
    response.status = reply.status;
    for (const auto& [name, value] : reply.headers) {
        response.set_header(name, value);
    }
    m_cut = reply.cut;
    if (!isReusable()) {
        response.set_header("Connection", "close");
    }
    if ((reply.stall.count() > 0 || reply.cut) && !reply.body.empty()) {
        deliverInPieces(reply, response);
    } else if (!reply.body.empty()) {
        response.set_content(reply.body, reply.contentType);
    }
}

// Announces the whole body, sends half of it, waits, and sends the rest unless that is to be missing.
void Visit::deliverInPieces(const Reply& reply, httplib::Response& response) {
    response.set_content_provider(reply.body.size(), reply.contentType,
                                  [this, body = reply.body, stall = reply.stall, cut = reply.cut](
                                      std::size_t offset, std::size_t length, httplib::DataSink& sink) {
                                      const auto half = body.size() / 2;
                                      if (offset < half) {
                                          return sink.write(body.data() + offset, half - offset);
                                      }
                                      return pause(stall) && !cut && sink.write(body.data() + offset, length);
                                  });
}

} // namespace sandbox
