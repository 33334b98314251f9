#pragma once

#include "sandbox/http/connection.h"
#include "sandbox/http/exchange.h"

#include <httplib.h>

namespace sandbox {

// One request on its connection: the exchange that the handler sees.
class Visit : public Exchange {
public:
    explicit Visit(Connection& connection) : m_connection(connection) {}

    // Called when the library has read the head. Notes it down and leaves the library a bare request, so that
    // it neither takes bodies apart nor packs replies by itself.
    void begin(httplib::Request& request);
    // The library's way to the body; none for a request without one.
    void attach(const httplib::ContentReader* reader) { m_reader = reader; }

    // Why a body of this shape cannot be read; empty when it can.
    std::string bodyFault() const;
    void deliver(const Reply& reply, httplib::Response& response);
    // The connection may carry another request.
    bool isReusable() const;

    const RequestHead& head() const override { return m_head; }
    bool readBody(const BodySink& sink) override;
    bool bodyComplete() const override { return m_complete || !m_hasBody; }
    std::uint64_t bodyBytes() const override { return m_bodyBytes; }
    bool pause(std::chrono::milliseconds time) override { return m_connection.pause(time); }
    void reset() override { m_connection.reset(); }
    bool isReset() const override { return m_connection.isReset(); }

private:
    void noteHead(const httplib::Request& request);
    void deliverInPieces(const Reply& reply, httplib::Response& response);

    Connection& m_connection;
    const httplib::ContentReader* m_reader = nullptr;
    RequestHead m_head;
    std::uint64_t m_bodyBytes = 0;
    bool m_begun = false;
    bool m_hasBody = false;
    bool m_read = false;
    bool m_complete = false;
    bool m_cut = false;
};

} // namespace sandbox
