#include "sandbox/http/faults.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <functional>
#include <limits>
#include <stdexcept>

namespace sandbox {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::int64_t kLongestWait = 600'000; // ms
constexpr std::size_t kLargestReply = 256U << 20U;

std::string textOf(const Json& value) {
    if (!value.is_string()) {
        throw std::invalid_argument("is not a string");
    }
    return value.get<std::string>();
}

bool flagOf(const Json& value) {
    if (!value.is_boolean()) {
        throw std::invalid_argument("is not true or false");
    }
    return value.get<bool>();
}

std::int64_t numberOf(const Json& value, std::int64_t least, std::int64_t most) {
    if (!value.is_number_integer() || value.get<std::int64_t>() < least || value.get<std::int64_t>() > most) {
        throw std::invalid_argument("is not an integer in its range");
    }
    return value.get<std::int64_t>();
}

std::chrono::milliseconds timeOf(const Json& value) {
    return std::chrono::milliseconds(numberOf(value, 0, kLongestWait));
}

std::uint64_t bytesOf(const Json& value) {
    return static_cast<std::uint64_t>(numberOf(value, 0, std::numeric_limits<std::int64_t>::max()));
}

// No header may smuggle in another one.
std::string headerText(const Json& value) {
    auto text = textOf(value);
    if (text.find_first_of("\r\n") != std::string::npos) {
        throw std::invalid_argument("holds a line break");
    }
    return text;
}

void setHeaders(Fault& fault, const Json& value) {
    if (!value.is_object()) {
        throw std::invalid_argument("is not an object");
    }
    for (const auto& item : value.items()) {
        fault.headers.emplace_back(headerText(item.key()), headerText(item.value()));
    }
    fault.replaces = true;
}

void setRedirect(Fault& fault, const Json& value) {
    fault.headers.emplace_back("Location", headerText(value));
    fault.status = fault.status == 200 ? 302 : fault.status;
    fault.replaces = true;
}

void setBody(Fault& fault, const Json& value) {
    fault.body = value.is_string() ? value.get<std::string>() : value.dump();
    if (!value.is_string() && fault.contentType.empty()) {
        fault.contentType = "application/json";
    }
    fault.replaces = true;
}

void repeatBody(Fault& fault, const Json& value) {
    const auto count = static_cast<std::size_t>(numberOf(value, 1, kLargestReply));
    if (fault.body.size() * count > kLargestReply) {
        throw std::invalid_argument("makes the body too large");
    }
    const auto once = fault.body;
    for (std::size_t i = 1; i < count; ++i) {
        fault.body += once;
    }
}

using Setter = std::function<void(Fault&, const Json&)>;

// In the order in which they take effect: the body is known before it is repeated, the status before it
// is (or is not) replaced by that of a redirect.
const std::vector<std::pair<std::string, Setter>>& setters() {
    static const std::vector<std::pair<std::string, Setter>> table = {
        {"path", [](Fault& f, const Json& v) { f.path = textOf(v); }},
        {"method", [](Fault& f, const Json& v) { f.method = textOf(v); }},
        {"times", [](Fault& f, const Json& v) { f.times = static_cast<int>(numberOf(v, 1, 1'000'000)); }},
        {"status",
         [](Fault& f, const Json& v) {
             f.status = static_cast<int>(numberOf(v, 200, 599));
             f.replaces = true;
         }},
        {"body", setBody},
        {"body_repeat", repeatBody},
        {"content_type", [](Fault& f, const Json& v) { f.contentType = headerText(v); }},
        {"headers", setHeaders},
        {"redirect", setRedirect},
        {"delay_ms", [](Fault& f, const Json& v) { f.delay = timeOf(v); }},
        {"early",
         [](Fault& f, const Json& v) {
             f.early = flagOf(v);
             f.replaces = f.replaces || f.early;
         }},
        {"stall_ms", [](Fault& f, const Json& v) { f.stall = timeOf(v); }},
        {"stall_after", [](Fault& f, const Json& v) { f.stallAfter = bytesOf(v); }},
        {"read_rate", [](Fault& f, const Json& v) { f.readRate = bytesOf(v); }},
        {"reset_after", [](Fault& f, const Json& v) { f.resetAfter = bytesOf(v); }},
        {"reply_stall_ms", [](Fault& f, const Json& v) { f.replyStall = timeOf(v); }},
        {"truncate", [](Fault& f, const Json& v) { f.truncate = flagOf(v); }},
    };
    return table;
}

bool knowsKey(const std::string& key) {
    return std::any_of(setters().begin(), setters().end(), [&](const auto& s) { return s.first == key; });
}

// The endpoint's view of a connection that stalls, or is slow, while the body comes in.
class StallingExchange : public ForwardingExchange {
public:
    StallingExchange(Exchange& inner, const Fault& fault) : ForwardingExchange(inner), m_fault(fault) {}

    bool readBody(const BodySink& sink) override {
        return stall() && inner().readBody([&](std::string_view bytes) {
            return stall() && keepPace(bytes.size()) && sink(bytes);
        });
    }

private:
    bool keepPace(std::size_t bytes) {
        return m_fault.readRate == 0 || pause(std::chrono::milliseconds(bytes * 1000 / m_fault.readRate));
    }

    bool stall() {
        if (m_stalled || m_fault.stall.count() == 0 || bodyBytes() < m_fault.stallAfter) {
            return true;
        }
        m_stalled = true;
        return pause(m_fault.stall);
    }

    const Fault& m_fault;
    bool m_stalled = false;
};

Reply replacement(const Fault& fault) {
    return {.status = fault.status,
            .contentType = fault.contentType.empty() ? "text/plain; charset=utf-8" : fault.contentType,
            .body = fault.body,
            .headers = fault.headers};
}

} // namespace

std::optional<Fault> parseFault(std::string_view text, std::string& why) {
    const auto tree = Json::parse(text, nullptr, false);
    if (!tree.is_object()) {
        why = "not a JSON object";
        return std::nullopt;
    }
    for (const auto& item : tree.items()) {
        if (!knowsKey(item.key())) {
            why = "unknown key '" + item.key() + "'";
            return std::nullopt;
        }
    }
    Fault fault;
    for (const auto& [key, setter] : setters()) {
        try {
            if (tree.contains(key)) {
                setter(fault, tree[key]);
            }
        } catch (const std::invalid_argument& error) {
            why = "'" + key + "' " + error.what();
            return std::nullopt;
        }
    }
    if (!fault.path.starts_with('/')) {
        why = "'path' is missing or does not begin with '/'";
        return std::nullopt;
    }
    return fault;
}

void Faults::add(Fault fault) {
    const std::lock_guard lock(m_mutex);
    m_faults.push_back(std::move(fault));
}

void Faults::clear() {
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
}

std::optional<Fault> Faults::take(const RequestHead& head) {
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_faults.begin(), m_faults.end(), [&](const Fault& fault) {
        return fault.path == head.path && (fault.method.empty() || fault.method == head.method);
    });
    if (found == m_faults.end()) {
        return std::nullopt;
    }
    auto fault = *found;
    if (--found->times == 0) {
        m_faults.erase(found);
    }
    return fault;
}

std::vector<Fault> Faults::waiting() const {
    const std::lock_guard lock(m_mutex);
    return {m_faults.begin(), m_faults.end()};
}

Reply serveFaulty(const Fault& fault, Exchange& exchange, const Handler& normal) {
    const auto goesOn = [&](std::string_view) {
        return !fault.resetAfter || exchange.bodyBytes() < *fault.resetAfter;
    };
    StallingExchange stalling(exchange, fault);
    exchange.pause(fault.delay);
    Reply reply;
    if (fault.early) {
        reply = replacement(fault);
    } else if (fault.replaces || fault.resetAfter) {
        stalling.readBody(goesOn);
        reply = replacement(fault);
    } else {
        reply = normal(stalling);
        stalling.readBody(goesOn);
    }
    if (fault.resetAfter) {
        exchange.reset();
    }
    reply.stall = fault.replyStall;
    reply.cut = fault.truncate;
    return reply;
}

} // namespace sandbox
