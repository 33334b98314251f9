#include "sandbox/visitor.h"

#include "sandbox/htmlform.h"
#include "tests/sandbox/runningservice.h"

#include <gtest/gtest.h>

namespace {

using sandbox::LocalUrl;
using sandbox::VisitError;
using sandbox::Visitor;

TEST(HtmlForm, IsReadAsABrowserWould) {
    const auto form = sandbox::findForm(
        "<p class='a>b'>x</p><INPUT name=outside><FORM Method=POST action=\"/go?a=1&amp;b=2\">"
        "<input type=hidden name='h' value='&quot;&#39;&lt;>&unknown;'><input name=\"t\" required/>"
        "<button name=d value=allow>A</button></form><form action=/other></form>");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->action, "/go?a=1&b=2");
    EXPECT_EQ(form->method, "post");
    ASSERT_EQ(form->controls.size(), 3U);
    EXPECT_EQ(form->controls[0].value, "\"'<>&unknown;");
    EXPECT_EQ(form->controls[1].type, "text");
    EXPECT_EQ(form->controls[2].value, "allow");
    for (const char* page : {"", "<", "<form", "<form a=\"", "no form", "<input"}) {
        EXPECT_NO_THROW(sandbox::findForm(page)) << page;
    }
}

TEST(LocalUrl, IsOfThisComputerOnly) {
    EXPECT_EQ(LocalUrl::parse("http://127.0.0.1:80/a?b#c").target, "/a?b");
    EXPECT_EQ(LocalUrl::parse("HTTP://localhost?b").target, "/?b");
    EXPECT_EQ(LocalUrl::parse("http://[::1]:8080").origin, "http://[::1]:8080");
    for (const char* url : {"", "https://127.0.0.1/", "http://example.org/", "http://127.0.0.1@example.org/",
                            "http://127.0.0.1.example.org/", "http://localhost:x/", "file:///etc/passwd",
                            "http://127.0.0.1:80@example.org/", "http://localhost:\\example.org"}) {
        EXPECT_THROW(LocalUrl::parse(url), VisitError) << url;
    }
}

TEST(Visitor, ComesBackWithACodeOrARefusal) {
    RunningService running;
    const auto allowed = Visitor("mara@example.org", "night-drive", true).authorize(running.authorizeUrl());
    EXPECT_TRUE(allowed.starts_with("brindlex://authorize?code=")) << allowed;
    EXPECT_EQ(allowed.find('+'), std::string::npos) << "escaped on its way";
    const auto denied = Visitor("mara@example.org", "night-drive", false).authorize(running.authorizeUrl());
    EXPECT_EQ(queryValue(denied, "error"), "access_denied");
    EXPECT_FALSE(queryValue(denied, "error_description").empty());
}

TEST(Visitor, GivesUpWhenThereIsNoWayToTheCallback) {
    RunningService running;
    const auto attempt = [&](const std::string& password, const std::string& url) {
        return Visitor("mara@example.org", password, true).authorize(url);
    };
    EXPECT_THROW(attempt("wrong", running.authorizeUrl()), VisitError);
    EXPECT_THROW(attempt("night-drive", running.authorizeUrl() + "&client_id=x"), VisitError);
    EXPECT_THROW(attempt("night-drive", running.origin() + "/"), VisitError);
    running.addFault(R"({"path":"/oauth/authorize","times":99,"redirect":"/oauth/authorize"})");
    EXPECT_THROW(attempt("night-drive", running.authorizeUrl()), VisitError);
    running.addFault(R"({"path":"/","redirect":"http://example.org/"})");
    EXPECT_THROW(attempt("night-drive", running.origin() + "/"), VisitError);
}

} // namespace
