#include "sandbox/control.h"

#include <nlohmann/json.hpp>

namespace sandbox {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kLongestFault = 4U << 20U;

Reply fine() {
    return jsonReply(200, "{\"ok\":true}");
}

Json describe(const Fault& fault) {
    return {{"path", fault.path}, {"method", fault.method}, {"times", fault.times}};
}

} // namespace

Reply Control::addFault(Exchange& exchange) {
    std::string text;
    std::string why = "the body is too long or breaks off";
    const auto fault =
        readText(exchange, kLongestFault, text) ? parseFault(text, why) : std::optional<Fault>();
    if (!fault) {
        return jsonReply(400, Json({{"error", why}}).dump(-1, ' ', false, Json::error_handler_t::replace));
    }
    m_faults.add(*fault);
    return fine();
}

Reply Control::clearFaults() {
    m_faults.clear();
    return fine();
}

Reply Control::showLog() const {
    return jsonReply(200, m_log.toJson());
}

Reply Control::clearLog() {
    m_log.clear();
    return fine();
}

Reply Control::showState() const {
    Json faults = Json::array();
    for (const auto& fault : m_faults.waiting()) {
        faults.push_back(describe(fault));
    }
    const auto counts = m_grants.counts();
    const Json state = {{"requests", m_log.count()},
                        {"accepted", m_inbox.accepted()},
                        {"codes", counts.codes},
                        {"tokens", counts.tokens},
                        {"faults", faults}};
    return jsonReply(200, state.dump(2) + "\n");
}

} // namespace sandbox
