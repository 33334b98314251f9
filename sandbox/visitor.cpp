#include "sandbox/visitor.h"

#include "sandbox/http/text.h"
#include "sandbox/webpage.h"

#include <algorithm>
#include <array>

namespace sandbox {
namespace {

constexpr int kMostSteps = 10;
constexpr std::string_view kScheme = "http://";

bool isPort(std::string_view text) {
    return !text.empty() && text.size() <= 5 &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool isLoopback(std::string_view authority) {
    constexpr std::array<std::string_view, 3> kHosts = {"127.0.0.1", "localhost", "[::1]"};
    return std::any_of(kHosts.begin(), kHosts.end(), [&](std::string_view host) {
        return authority == host ||
               (authority.starts_with(host) && authority.substr(host.size()).starts_with(':') &&
                isPort(authority.substr(host.size() + 1)));
    });
}

bool hasScheme(const std::string& location) {
    const auto colon = location.find(':');
    return colon != std::string::npos && colon != 0 && location.find_first_of("/?#") > colon;
}

bool isWebScheme(const std::string& location) {
    const auto lower = lowerAscii(location);
    return lower.starts_with(kScheme) || lower.starts_with("https://");
}

} // namespace

LocalUrl LocalUrl::parse(const std::string& url) {
    if (!lowerAscii(url).starts_with(kScheme)) {
        throw VisitError("only http addresses are opened");
    }
    const auto rest = url.substr(kScheme.size(), url.find('#') - kScheme.size());
    const auto end = std::min(rest.find_first_of("/?"), rest.size());
    const auto authority = rest.substr(0, end);
    if (!isLoopback(lowerAscii(authority))) {
        throw VisitError("only addresses of this computer are opened (127.0.0.1, localhost, [::1])");
    }
    const auto target = rest.substr(end);
    return {std::string(kScheme) + authority, target.starts_with('/') ? target : "/" + target};
}

std::string Visitor::authorize(const std::string& url) {
    m_next = LocalUrl::parse(url);
    m_body.clear();
    m_signedIn = false;
    for (int i = 0; i < kMostSteps; ++i) {
        std::string callback;
        if (step(fetch(m_next.origin + m_next.target, m_body), callback)) {
            return callback;
        }
    }
    throw VisitError("the pages lead in a circle");
}

bool Visitor::step(const WebPage& page, std::string& callback) {
    if (page.status >= 300 && page.status < 400) {
        follow(page.location, callback);
        return !callback.empty();
    }
    const auto form = findForm(page.body);
    if (m_signedIn && form && form->hasType("password")) {
        throw VisitError("the sign-in was refused");
    }
    if (page.status != 200 || !form) {
        throw VisitError("the page cannot be used (status " + std::to_string(page.status) + ")");
    }
    submit(*form);
    return false;
}

void Visitor::follow(const std::string& location, std::string& callback) {
    m_body.clear();
    if (location.empty()) {
        throw VisitError("a redirect leads nowhere");
    }
    if (hasScheme(location) && !isWebScheme(location)) {
        callback = location;
    } else if (location.starts_with('/')) {
        m_next.target = location.substr(0, location.find('#'));
    } else {
        m_next = LocalUrl::parse(location);
    }
}

void Visitor::submit(const HtmlForm& form) {
    if (form.method != "post" || !form.action.starts_with('/')) {
        throw VisitError("the page's form is of an unknown kind");
    }
    m_signedIn = m_signedIn || form.hasType("password");
    m_next.target = form.action;
    m_body = fill(form);
}

std::string Visitor::valueFor(const HtmlForm::Control& control) const {
    if (control.type == "password") {
        return m_password;
    }
    return control.type == "email" || control.type == "text" ? m_user : control.value;
}

// Every field, and of the buttons the one that is pressed: the decision if the page has one, else the first.
std::string Visitor::fill(const HtmlForm& form) const {
    const std::string decision = m_allows ? "allow" : "deny";
    const HtmlForm::Control* pressed = nullptr;
    std::string body;
    const auto add = [&](const std::string& name, const std::string& value) {
        body += (body.empty() ? "" : "&") + percentEncode(name) + "=" + percentEncode(value);
    };
    const bool canDecide = !form.hasType("password");
    for (const auto& control : form.controls) {
        if (control.type == "button" || control.type == "submit") {
            const bool isBetter = pressed == nullptr || (canDecide && control.value == decision);
            pressed = isBetter ? &control : pressed;
        } else if (!control.name.empty()) {
            add(control.name, valueFor(control));
        }
    }
    if (pressed != nullptr && !pressed->name.empty()) {
        add(pressed->name, pressed->value);
    }
    return body;
}

} // namespace sandbox
