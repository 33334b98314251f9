#include "sandbox/http/form.h"

#include <gtest/gtest.h>

namespace {

using sandbox::Form;

TEST(Form, ReadsWhatIsWellFormed) {
    const struct {
        const char* text;
        std::vector<Form::Field> fields;
    } cases[] = {
        {"", {}},
        {"a=", {{"a", ""}}},
        {"a=1+2%2B3", {{"a", "1 2+3"}}},
        {"b=%e2%99%AB&a=x%3Dy%26z", {{"b", "\xe2\x99\xab"}, {"a", "x=y&z"}}},
        {"u=brindlex://authorize", {{"u", "brindlex://authorize"}}},
        {"a=b=c", {{"a", "b=c"}}},
    };
    for (const auto& c : cases) {
        const auto form = Form::parse(c.text);
        ASSERT_TRUE(form) << c.text;
        EXPECT_EQ(form->fields(), c.fields) << c.text;
    }
}

TEST(Form, RefusesWhatIsNot) {
    for (const char* text : {"a", "=1", "&", "a=1&", "a=1&&b=2", "a=1&a=2", "a=%", "a=%2", "a=%2g", "a=1 2",
                             "a=\xc3\xa4", "a=1#b", "a=\"", "a=1\r\n"}) {
        EXPECT_FALSE(Form::parse(text)) << text;
    }
}

} // namespace
