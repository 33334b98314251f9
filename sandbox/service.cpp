#include "sandbox/service.h"

#include "sandbox/pages/pages.h"

#include <nlohmann/json.hpp>

#include <exception>

namespace sandbox {
namespace {

constexpr std::string_view kControlPrefix = "/control/";

bool keepReading(std::string_view /*bytes*/) {
    return true;
}

Reply unauthorized() {
    auto reply = jsonReply(401, R"({"errors":"The access token is missing, wrong or has expired"})");
    reply.headers.emplace_back("WWW-Authenticate", "Bearer");
    return reply;
}

} // namespace

Service::Service(const Settings& settings, const std::filesystem::path& inbox,
                 const std::filesystem::path& log)
    : m_settings(settings),
      m_grants(settings.tokenLifetime),
      m_inbox(inbox),
      m_log(log),
      m_authorization(m_settings, m_grants),
      m_ingestion(m_inbox, settings.client.id),
      m_control(m_faults, m_log, m_grants, m_inbox) {
    addRoutes();
    addControlRoutes();
}

void Service::addRoutes() {
    m_routes = {
        {"GET", "/", [](Exchange&) { return htmlReply(200, indexPage()); }},
        {"GET", "/oauth/authorize", [this](Exchange& e) { return m_authorization.showSignIn(e); }},
        {"POST", "/oauth/authorize", [this](Exchange& e) { return m_authorization.takeSignIn(e); }},
        {"POST", "/oauth/token", [this](Exchange& e) { return m_authorization.exchangeCode(e); }},
        {"GET", "/api/frontstage/account", [this](Exchange& e) { return showAccount(e); }},
        {"POST", "/api/frontstage/release_ingestion", [this](Exchange& e) { return ingest(e); }},
    };
    for (const auto& document : m_news.documents()) {
        m_routes.push_back({"GET", document.path, [&document](Exchange& exchange) {
                                return News::serve(document, exchange.head());
                            }});
    }
}

void Service::addControlRoutes() {
    m_routes.push_back({"POST", "/control/fault", [this](Exchange& e) { return m_control.addFault(e); }});
    m_routes.push_back({"DELETE", "/control/fault", [this](Exchange&) { return m_control.clearFaults(); }});
    m_routes.push_back({"GET", "/control/log", [this](Exchange&) { return m_control.showLog(); }});
    m_routes.push_back({"DELETE", "/control/log", [this](Exchange&) { return m_control.clearLog(); }});
    m_routes.push_back({"GET", "/control/state", [this](Exchange&) { return m_control.showState(); }});
}

// Requests of the controls are neither logged nor disturbed.
Reply Service::handle(Exchange& exchange) {
    if (exchange.head().path.starts_with(kControlPrefix)) {
        return route(exchange);
    }
    LoggedExchange logged(exchange);
    auto reply = serve(logged);
    m_log.add(logged, reply);
    return reply;
}

// The body is read to its end even when the endpoint did not care for it: only a fault answers early.
Reply Service::serve(Exchange& exchange) {
    if (const auto fault = m_faults.take(exchange.head())) {
        return serveFaulty(*fault, exchange, [this](Exchange& e) { return route(e); });
    }
    auto reply = route(exchange);
    exchange.readBody(keepReading);
    return reply;
}

Reply Service::route(Exchange& exchange) const {
    const auto& head = exchange.head();
    const auto method = head.method == "HEAD" ? std::string("GET") : head.method;
    std::string allowed;
    for (const auto& candidate : m_routes) {
        if (candidate.path != head.path) {
            continue;
        }
        if (candidate.method == method) {
            try {
                return candidate.handler(exchange);
            } catch (const std::exception& error) {
                return textReply(500, std::string("The stand-in failed: ") + error.what() + "\n");
            }
        }
        allowed += (allowed.empty() ? "" : ", ") + candidate.method;
    }
    if (allowed.empty()) {
        return textReply(404, "There is nothing here.\n");
    }
    auto reply = textReply(405, "This endpoint does not take that method.\n");
    reply.headers.emplace_back("Allow", allowed);
    return reply;
}

Reply Service::showAccount(const Exchange& exchange) const {
    if (!m_authorization.isAuthorized(exchange.head())) {
        return unauthorized();
    }
    const auto& account = m_settings.account;
    const nlohmann::ordered_json user = {
        {"account_id", account.id}, {"name", account.name}, {"email", account.user}};
    return jsonReply(200, nlohmann::ordered_json({{"user", user}}).dump());
}

Reply Service::ingest(Exchange& exchange) const {
    return m_authorization.isAuthorized(exchange.head()) ? m_ingestion.handle(exchange) : unauthorized();
}

} // namespace sandbox
