#include "sandbox/http/faults.h"

#include <gtest/gtest.h>

namespace {

TEST(Faults, AreReadFromJson) {
    std::string why;
    const auto fault = sandbox::parseFault(
        R"({"path":"/a","method":"POST","times":2,"redirect":"http://x/","body":{"k":1},"body_repeat":2,
            "reset_after":0,"delay_ms":5})",
        why);
    ASSERT_TRUE(fault) << why;
    EXPECT_EQ(fault->status, 302);
    EXPECT_EQ(fault->body, R"({"k":1}{"k":1})");
    EXPECT_EQ(fault->contentType, "application/json");
    EXPECT_EQ(fault->resetAfter, 0U);
    EXPECT_EQ(fault->delay.count(), 5);

    const auto delayOnly = sandbox::parseFault(R"({"path":"/a","delay_ms":5})", why);
    ASSERT_TRUE(delayOnly);
    EXPECT_FALSE(delayOnly->replaces) << "the endpoint answers by itself";
}

TEST(Faults, WithMistakesAreRefused) {
    for (const char* text :
         {"", "[]", "{}", R"({"path":"a"})", R"({"path":"/a","sttaus":500})",
          R"({"path":"/a","status":"500"})", R"({"path":"/a","status":99})", R"({"path":"/a","times":0})",
          R"({"path":"/a","early":1})", R"({"path":"/a","delay_ms":-1})",
          R"({"path":"/a","reset_after":18446744073709551615})",
          R"({"path":"/a","redirect":"/b\r\nSet-Cookie: c"})", R"({"path":"/a","headers":["x"]})",
          R"({"path":"/a","body":"xxxxxxxx","body_repeat":100000000})"}) {
        std::string why;
        EXPECT_FALSE(sandbox::parseFault(text, why)) << text;
        EXPECT_FALSE(why.empty()) << text;
    }
}

TEST(Faults, AreTakenInOrderByPathAndMethod) {
    sandbox::Faults faults;
    std::string why;
    faults.add(*sandbox::parseFault(R"({"path":"/a","method":"POST","status":501})", why));
    faults.add(*sandbox::parseFault(R"({"path":"/a","times":2,"status":502})", why));
    const struct {
        const char* method;
        const char* path;
        int status; // 0: no fault
    } requests[] = {{"GET", "/b", 0},    {"GET", "/a", 502}, {"POST", "/a", 501},
                    {"POST", "/a", 502}, {"POST", "/a", 0},  {"GET", "/a", 0}};
    for (const auto& request : requests) {
        const auto fault =
            faults.take({.method = request.method, .path = request.path, .query = {}, .headers = {}});
        EXPECT_EQ(fault ? fault->status : 0, request.status) << request.method << request.path;
    }
}

} // namespace
