#include "sandbox/pages/pages.h"

#include "sandbox/http/text.h"

namespace sandbox {
namespace {

constexpr const char* kStyle = R"css(
:root { color-scheme: light dark; --ground: #f3f1f7; --card: #fff; --ink: #1d1a26; --soft: #5d576c;
  --line: #c9c3d6; --accent: #5b3fc4; --on-accent: #fff; --bad-ground: #fde8e8; --bad: #8f1d1d; }
@media (prefers-color-scheme: dark) { :root { --ground: #15131b; --card: #211e2a; --ink: #f0edf6;
  --soft: #b0a9c0; --line: #4a4459; --accent: #b9a5ff; --on-accent: #1b1430; --bad-ground: #43191c;
  --bad: #ffc9c9; } }
* { box-sizing: border-box; }
body { margin: 0; min-height: 100vh; display: grid; place-items: center; padding: 1rem;
  font: 1rem/1.5 system-ui, sans-serif; background: var(--ground); color: var(--ink); }
main { width: 100%; max-width: 26rem; padding: 2rem; border: 1px solid var(--line); border-radius: 1rem;
  background: var(--card); }
main.wide { max-width: 44rem; }
h1 { margin: 0 0 .5rem; font-size: 1.5rem; line-height: 1.25; }
p { margin: .5rem 0; } .soft { color: var(--soft); font-size: .9rem; }
.brand { margin: 0 0 1rem; font-weight: 700; letter-spacing: .04em; color: var(--accent); }
label { display: block; margin-top: 1rem; font-weight: 600; }
input { width: 100%; margin-top: .25rem; padding: .6rem .75rem; font: inherit; color: inherit;
  background: var(--ground); border: 1px solid var(--line); border-radius: .5rem; }
.buttons { display: flex; flex-wrap: wrap; gap: .75rem; margin-top: 1.5rem; }
button { flex: 1 1 8rem; padding: .7rem 1rem; font: inherit; font-weight: 600; border-radius: .5rem;
  border: 1px solid var(--accent); background: transparent; color: var(--accent); cursor: pointer; }
button.main { background: var(--accent); color: var(--on-accent); }
:is(a, button, input):focus-visible { outline: 3px solid var(--accent); outline-offset: 2px; }
a { color: var(--accent); overflow-wrap: anywhere; } code { overflow-wrap: anywhere; }
.message { padding: .6rem .75rem; border-radius: .5rem; background: var(--bad-ground); color: var(--bad); }
ul { padding-left: 1.2rem; } li { margin: .25rem 0; }
)css";

std::string page(const std::string& title, const std::string& content, const std::string& width = "") {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<link rel=\"icon\" href=\"data:,\">\n<title>" +
           escapeMarkup(title) + " – Brindlex sandbox</title>\n<style>" + kStyle +
           "</style>\n</head>\n<body>\n<main" + width + ">\n<p class=\"brand\">Brindlex sandbox</p>\n<h1>" +
           escapeMarkup(title) + "</h1>\n" + content + "</main>\n</body>\n</html>\n";
}

std::string formStart(const HiddenFields& hidden) {
    std::string out = "<form method=\"post\" action=\"/oauth/authorize\">\n";
    for (const auto& [name, value] : hidden) {
        out += "<input type=\"hidden\" name=\"" + escapeMarkup(name) + "\" value=\"" + escapeMarkup(value) +
               "\">\n";
    }
    return out;
}

std::string messageBox(const std::string& message) {
    return message.empty() ? std::string()
                           : "<p class=\"message\" role=\"alert\">" + escapeMarkup(message) + "</p>\n";
}

} // namespace

std::string signInPage(const Account& account, const HiddenFields& hidden, const std::string& user,
                       const std::string& message) {
    return page(
        "Sign in",
        "<p>A program on this computer asks to use your account.</p>\n" + messageBox(message) +
            formStart(hidden) +
            "<label for=\"email\">Email</label>\n"
            "<input id=\"email\" name=\"email\" type=\"email\" autocomplete=\"username\" required "
            "autofocus value=\"" +
            escapeMarkup(user) +
            "\">\n"
            "<label for=\"password\">Password</label>\n"
            "<input id=\"password\" name=\"password\" type=\"password\" "
            "autocomplete=\"current-password\" required>\n"
            "<div class=\"buttons\">\n"
            "<button class=\"main\" type=\"submit\" name=\"decision\" value=\"sign-in\">Sign in</button>\n"
            "<button type=\"submit\" name=\"decision\" value=\"deny\" formnovalidate>Cancel</button>\n"
            "</div>\n</form>\n<p class=\"soft\">Sample account: <code>" +
            escapeMarkup(account.user) + "</code>, password <code>" + escapeMarkup(account.password) +
            "</code></p>\n");
}

std::string consentPage(const Account& account, const HiddenFields& hidden) {
    return page(
        "Allow access?",
        "<p>Signed in as <strong>" + escapeMarkup(account.name) + "</strong> (" + escapeMarkup(account.user) +
            ").</p>\n<p>The program will be able to:</p>\n<ul>\n<li>see your name and email address</li>\n"
            "<li>hand in releases on your behalf</li>\n</ul>\n" +
            formStart(hidden) +
            "<div class=\"buttons\">\n"
            "<button class=\"main\" type=\"submit\" name=\"decision\" value=\"allow\">Allow</button>\n"
            "<button type=\"submit\" name=\"decision\" value=\"deny\">Deny</button>\n"
            "</div>\n</form>\n");
}

std::string returnPage(const std::string& callback) {
    return page(
        "Back to the program",
        "<p>You can close this page now. If nothing happens, hand the answer over by hand:</p>\n"
        "<p><a href=\"" +
            escapeMarkup(callback) +
            "\">Return to the program</a></p>\n<p>Or copy this link, and paste it in the program:</p>\n"
            "<p><code>" +
            escapeMarkup(callback) + "</code></p>\n");
}

std::string errorPage(const std::string& message) {
    return page("This request cannot be served",
                messageBox(message) + "<p>Go back to the program and start the sign-in again.</p>\n");
}

std::string indexPage() {
    return page("Local stand-in of the service",
                R"html(<p>This server plays the music distribution service for
development and tests. It answers on this computer only.</p>
<ul>
<li><code>GET /oauth/authorize</code> – sign-in and consent pages</li>
<li><code>POST /oauth/token</code> – authorization code for tokens</li>
<li><code>GET /api/frontstage/account</code> – who the account is</li>
<li><code>POST /api/frontstage/release_ingestion</code> – hands in a release</li>
<li><a href="/feed.atom"><code>GET /feed.atom</code></a> – news with pictures</li>
<li><a href="/control/state"><code>GET /control/state</code></a>,
<a href="/control/log"><code>GET /control/log</code></a> – what happened so far</li>
<li><code>POST /control/fault</code>, <code>DELETE /control/fault</code> – faults on demand</li>
</ul>
)html",
                " class=\"wide\"");
}

std::string articlePage(const std::string& title, const std::string& text) {
    return page(title, "<p>" + escapeMarkup(text) + "</p>\n", " class=\"wide\"");
}

} // namespace sandbox
