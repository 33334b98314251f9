#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// One request and its reply, as the endpoints see them: no HTTP library shows through.
namespace sandbox {

using HeaderField = std::pair<std::string, std::string>;

struct RequestHead {
    std::string method;
    std::string path;  // decoded, without the query
    std::string query; // as sent
    std::vector<HeaderField> headers;

    // The first field of that name, whatever its case; the empty string when there is none.
    std::string header(std::string_view name) const;
    bool has(std::string_view name) const;
};

struct Reply {
    int status = 200;
    std::string contentType;
    std::string body;
    std::vector<HeaderField> headers;

    // Faults of the reply itself, both in the middle of the body.
    std::chrono::milliseconds stall{0};
    bool cut = false;
};

Reply jsonReply(int status, std::string body);
Reply textReply(int status, std::string body);
Reply htmlReply(int status, std::string body);

// Takes the next bytes of a body; false refuses the rest.
using BodySink = std::function<bool(std::string_view bytes)>;

// Lives for one request, on the thread of its connection.
class Exchange {
public:
    virtual ~Exchange() = default;

    virtual const RequestHead& head() const = 0;
    // Reads the body, once; true when it came to its proper end, now or in an earlier call. What a sink
    // refused and what nobody read is given up together with the connection once the reply is sent.
    virtual bool readBody(const BodySink& sink) = 0;
    virtual bool bodyComplete() const = 0;
    virtual std::uint64_t bodyBytes() const = 0;
    // Waits; false when the server is stopping meanwhile.
    virtual bool pause(std::chrono::milliseconds time) = 0;
    // Ends the connection the rude way (TCP reset); no reply will be sent.
    virtual void reset() = 0;
    virtual bool isReset() const = 0;
};

// An exchange that passes everything on, for those that change one thing about it.
class ForwardingExchange : public Exchange {
public:
    explicit ForwardingExchange(Exchange& inner) : m_inner(inner) {}

    const RequestHead& head() const override { return m_inner.head(); }
    bool readBody(const BodySink& sink) override { return m_inner.readBody(sink); }
    bool bodyComplete() const override { return m_inner.bodyComplete(); }
    std::uint64_t bodyBytes() const override { return m_inner.bodyBytes(); }
    bool pause(std::chrono::milliseconds time) override { return m_inner.pause(time); }
    void reset() override { m_inner.reset(); }
    bool isReset() const override { return m_inner.isReset(); }

protected:
    Exchange& inner() { return m_inner; }

private:
    Exchange& m_inner;
};

using Handler = std::function<Reply(Exchange&)>;

// The whole body as a text; false when it is longer than `limit` or breaks off.
bool readText(Exchange& exchange, std::size_t limit, std::string& text);

} // namespace sandbox
