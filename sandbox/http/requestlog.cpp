#include "sandbox/http/requestlog.h"

#include "sandbox/http/form.h"
#include "sandbox/http/text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <stdexcept>

namespace sandbox {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kMostEntries = 2000;
constexpr std::size_t kLongestText = 200;

std::string shortened(std::string text) {
    text.resize(std::min(text.size(), kLongestText));
    return text;
}

std::string timeText() {
    const auto now = std::chrono::system_clock::now();
    const auto seconds = std::chrono::system_clock::to_time_t(now);
    const auto millis =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm parts{};
    ::gmtime_r(&seconds, &parts);
    std::array<char, 32> text{};
    const auto length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S.", &parts);
    return std::string(text.data(), length) + std::to_string(1000 + millis).substr(1) + "Z";
}

// A field's name is shown only when it is one of the interface: in a garbled text anything may stand in the
// place of a name, a secret as well.
std::vector<std::string> fieldNames(const std::string& text) {
    constexpr std::string_view kKnown[] = {"client_id",
                                           "client_secret",
                                           "redirect_uri",
                                           "response_type",
                                           "grant_type",
                                           "code",
                                           "jt",
                                           "scope",
                                           "state",
                                           "code_challenge",
                                           "code_challenge_method",
                                           "email",
                                           "password",
                                           "decision",
                                           "ticket"};
    std::vector<std::string> names;
    const auto form = Form::parse(text);
    if (!form) {
        return {"?"};
    }
    for (const auto& field : form->fields()) {
        const bool known = std::find(std::begin(kKnown), std::end(kKnown), field.first) != std::end(kKnown);
        names.push_back(known ? field.first : "?");
    }
    return names;
}

Json describeAuthorization(const RequestHead& head) {
    const auto value = head.header("Authorization");
    const auto blank = value.find(' ');
    return {{"present", head.has("Authorization")},
            {"scheme", blank == std::string::npos ? "" : shortened(value.substr(0, blank))}};
}

Json describe(const LoggedExchange& exchange, const Reply& reply) {
    const auto& head = exchange.head();
    Json names = Json::array();
    for (const auto& field : head.headers) {
        names.push_back(shortened(field.first));
    }
    return {{"time", timeText()},
            {"method", head.method},
            {"path", shortened(head.path)},
            {"query_fields", fieldNames(head.query)},
            {"headers", names},
            {"authorization", describeAuthorization(head)},
            {"content_type", shortened(head.header("Content-Type"))},
            {"body_bytes", exchange.bodyBytes()},
            {"body_complete", exchange.bodyComplete()},
            {"form_fields", fieldNames(exchange.formText())},
            {"status", exchange.isReset() ? 0 : reply.status}};
}

} // namespace

bool LoggedExchange::readBody(const BodySink& sink) {
    const bool isForm = head().header("Content-Type").find("form-urlencoded") != std::string::npos;
    return inner().readBody([&](std::string_view bytes) {
        if (isForm && m_formText.size() + bytes.size() <= kLongestForm) {
            m_formText += bytes;
        }
        return sink(bytes);
    });
}

RequestLog::RequestLog(const std::filesystem::path& file) {
    if (!file.empty()) {
        m_file.open(file, std::ios::app);
        if (!m_file) {
            throw std::runtime_error("cannot write the log " + file.string());
        }
    }
}

void RequestLog::add(const LoggedExchange& exchange, const Reply& reply) {
    auto line = describe(exchange, reply).dump(-1, ' ', false, Json::error_handler_t::replace);
    const std::lock_guard lock(m_mutex);
    ++m_count;
    if (m_file.is_open()) {
        m_file << line << std::endl;
    }
    m_entries.push_back(std::move(line));
    if (m_entries.size() > kMostEntries) {
        m_entries.pop_front();
    }
}

void RequestLog::clear() {
    const std::lock_guard lock(m_mutex);
    m_entries.clear();
    m_count = 0;
}

std::uint64_t RequestLog::count() const {
    const std::lock_guard lock(m_mutex);
    return m_count;
}

std::string RequestLog::toJson() const {
    const std::lock_guard lock(m_mutex);
    std::string text = "[";
    for (const auto& entry : m_entries) {
        text += (text.size() > 1 ? ",\n" : "\n") + entry;
    }
    return text + "\n]\n";
}

} // namespace sandbox
