#include "sandbox/pages/authorization.h"

#include "sandbox/http/text.h"
#include "sandbox/pages/pages.h"

#include <nlohmann/json.hpp>

namespace sandbox {
namespace {

constexpr const char* kFormType = "application/x-www-form-urlencoded";

// What the pages carry from step to step.
constexpr const char* kRequestFields[] = {"client_id", "redirect_uri", "response_type", "jt"};

HiddenFields carriedFields(const Form& request) {
    HiddenFields fields;
    for (const auto* name : kRequestFields) {
        if (request.has(name)) {
            fields.emplace_back(name, request.value(name));
        }
    }
    return fields;
}

bool hasFormType(const RequestHead& head) {
    auto type = lowerAscii(head.header("Content-Type"));
    type = type.substr(0, type.find(';'));
    type.erase(type.find_last_not_of(' ') + 1);
    return type == kFormType;
}

std::optional<Form> readForm(Exchange& exchange) {
    std::string text;
    if (!hasFormType(exchange.head()) || !readText(exchange, kLongestForm, text)) {
        return std::nullopt;
    }
    return Form::parse(text);
}

// Pages with a password form and answers with tokens stay out of caches, frames and referrers.
Reply guarded(Reply reply) {
    reply.headers.emplace_back("Cache-Control", "no-store");
    reply.headers.emplace_back("X-Frame-Options", "DENY");
    reply.headers.emplace_back("Referrer-Policy", "no-referrer");
    return reply;
}

Reply tokenError(int status, const char* error, const char* description) {
    const nlohmann::json body = {{"error", error}, {"error_description", description}};
    return guarded(jsonReply(status, body.dump()));
}

} // namespace

// Empty when the request for authorization is in order. A request with a fault is never answered with a
// redirect: nothing vouches for where it would lead.
std::string Authorization::requestFault(const Form& request) const {
    if (request.value("client_id") != m_settings.client.id) {
        return "The program is not known to the service (client_id).";
    }
    if (request.value("redirect_uri") != m_settings.client.redirectUri) {
        return "The return address is not the one registered for the program (redirect_uri).";
    }
    if (request.value("response_type") != "code") {
        return "The kind of answer asked for is not supported (response_type).";
    }
    return {};
}

Reply Authorization::showSignIn(Exchange& exchange) {
    const auto request = Form::parse(exchange.head().query);
    const auto fault = request ? requestFault(*request) : "The address is malformed.";
    if (!fault.empty()) {
        return guarded(htmlReply(400, errorPage(fault)));
    }
    return guarded(htmlReply(200, signInPage(m_settings.account, carriedFields(*request), "", "")));
}

Reply Authorization::takeSignIn(Exchange& exchange) {
    const auto form = readForm(exchange);
    const auto fault = form ? requestFault(*form) : "The form is malformed.";
    if (!fault.empty()) {
        return guarded(htmlReply(400, errorPage(fault)));
    }
    return decide(*form);
}

Reply Authorization::decide(const Form& form) {
    const auto decision = form.value("decision");
    if (decision == "deny") {
        return redirect("error=access_denied&error_description=" + percentEncode("The user denied access"));
    }
    if (decision != "allow") {
        return checkPassword(form);
    }
    if (!m_grants.redeemTicket(form.value("ticket"))) {
        return guarded(htmlReply(403, signInPage(m_settings.account, carriedFields(form), "",
                                                 "The sign-in has run out. Please sign in again.")));
    }
    return redirect("code=" +
                    percentEncode(m_grants.issueCode(form.value("client_id"), form.value("redirect_uri"))));
}

Reply Authorization::checkPassword(const Form& form) {
    const auto& account = m_settings.account;
    auto hidden = carriedFields(form);
    const auto user = form.value("email");
    if (user != account.user || form.value("password") != account.password) {
        return guarded(htmlReply(
            403, signInPage(account, hidden, user, "Email or password is wrong. Please try again.")));
    }
    hidden.emplace_back("ticket", m_grants.issueTicket());
    return guarded(htmlReply(200, consentPage(account, hidden)));
}

Reply Authorization::redirect(const std::string& query) const {
    const auto& uri = m_settings.client.redirectUri;
    const auto callback = uri + (uri.find('?') == std::string::npos ? "?" : "&") + query;
    // A page, not a redirect: where nothing handles the program's links, the person still has one to copy.
    auto reply = htmlReply(200, returnPage(callback));
    reply.headers.emplace_back("Refresh", "0; url=" + callback);
    return guarded(reply);
}

Reply Authorization::exchangeCode(Exchange& exchange) {
    const auto form = readForm(exchange);
    if (!form) {
        return tokenError(400, "invalid_request", "the body is not a well-formed URL-encoded form");
    }
    const auto& client = m_settings.client;
    if (form->value("client_id") != client.id || form->value("client_secret") != client.secret) {
        return tokenError(401, "invalid_client", "client_id or client_secret is wrong");
    }
    if (form->value("grant_type") != "authorization_code") {
        return tokenError(400, "unsupported_grant_type", "only authorization_code is supported");
    }
    if (!m_grants.redeemCode(form->value("code"), client.id, form->value("redirect_uri"))) {
        return tokenError(400, "invalid_grant",
                          "the code is unknown, used, expired or for another redirect_uri");
    }
    return tokenReply();
}

Reply Authorization::tokenReply() {
    const nlohmann::json body = {{"access_token", m_grants.issueAccessToken()},
                                 {"refresh_token", randomText(32)},
                                 {"id_token", randomText(32)},
                                 {"token_type", "Bearer"},
                                 {"expires_in", m_settings.tokenLifetime.count()}};
    return guarded(jsonReply(200, body.dump()));
}

bool Authorization::isAuthorized(const RequestHead& head) const {
    constexpr std::string_view kScheme = "Bearer ";
    const auto value = head.header("Authorization");
    return value.starts_with(kScheme) && m_grants.accepts(value.substr(kScheme.size()));
}

} // namespace sandbox
