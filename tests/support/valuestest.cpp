#include "framework/support/data/attributes.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/answers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using fakehost::Rows;
using xbr::Value;
using xbr::ValueKind;

constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
constexpr auto kMost = std::numeric_limits<std::int64_t>::max();

TEST(Values, AreNumbersAndTextsAsFarAsTheyCan) {
    const auto object = xbr::make<xbr::Attributes>();
    // The value as an integer (-7 for none), as a number and as a text.
    for (const auto& [value, integer, number, text] : Rows<Value, std::int64_t, double, const char*>{
             {xbr::noValue(), -7, 0.0, ""},
             {xbr::boolValue(true), 1, 1.0, ""},
             {xbr::boolValue(false), 0, 0.0, ""},
             {xbr::integerValue(-5), -5, -5.0, ""},
             {xbr::floatValue(2.9), 2, 2.9, ""},
             {xbr::floatValue(-2.9), -2, -2.9, ""},
             {xbr::floatValue(std::nan("")), 0, std::nan(""), ""},
             {xbr::floatValue(9223372036854775808.0), kMost, 9223372036854775808.0, ""},
             {xbr::floatValue(9223372036854774784.0), 9223372036854774784, 9223372036854774784.0, ""},
             {xbr::floatValue(-1e30), kLeast, -1e30, ""},
             {xbr::textValue("7"), -7, 0.0, "7"},
             {xbr::objectValue(object.get()), -7, 0.0, ""},
         }) {
        SCOPED_TRACE(static_cast<int>(value.kind));
        const xbr::OwnedValue owned(value);
        for (const Value& each : {value, owned.value()}) {
            EXPECT_EQ(each.kind, value.kind);
            EXPECT_EQ(xbr::integerOf(each, -7), integer);
            EXPECT_TRUE(xbr::numberOf(each) == number || std::isnan(number)) << number;
            EXPECT_EQ(xbr::textOf(each), text);
        }
        EXPECT_EQ(owned.value().kind == ValueKind::kObject ? owned.value().object : object.get(),
                  object.get());
    }
    EXPECT_EQ(xbr::OwnedValue(xbr::textValue("a")), xbr::OwnedValue(xbr::textValue("a")));
    EXPECT_NE(xbr::OwnedValue(xbr::textValue("a")), xbr::OwnedValue(xbr::textValue("b")));
}

TEST(Texts, AreBroughtIntoShape) {
    using Text = const char*;
    for (const auto& [text, trimmed, line, lower, ascii] : Rows<Text, Text, Text, Text, Text>{
             {"", "", "", "", ""},
             {" \t\r\n\v\f", "", "     ", " \t\r\n\v\f", " \t\r\n\v\f"},
             {" a b\n", "a b", " a b ", " a b\n", " a b\n"},
             {"A\r\nZ\n\n@[", "A\r\nZ\n\n@[", "A Z  @[", "a\r\nz\n\n@[", "A\r\nZ\n\n@["},
             {"\xC3\x84z\xE2\x82\xAC\x7F", "\xC3\x84z\xE2\x82\xAC\x7F", "\xC3\x84z\xE2\x82\xAC\x7F",
              "\xC3\x84z\xE2\x82\xAC\x7F", "?z?\x7F"},
         }) {
        EXPECT_EQ(xbr::trim(text), trimmed);
        EXPECT_EQ(xbr::toSingleLine(text), line) << text;
        EXPECT_EQ(xbr::asciiLower(text), lower);
        EXPECT_EQ(xbr::toAscii(text), ascii);
    }
    EXPECT_EQ(xbr::take({}), "");
    EXPECT_EQ(xbr::toString(xbr::uid("0f234567-89ab-cdef-0123-456789abcdf0")),
              "0f234567-89ab-cdef-0123-456789abcdf0");
}

TEST(Attributes, KeepTheOrderAndTheLastValueOfAnything) {
    const auto root = xbr::make<xbr::Attributes>();
    root->set("b", "old");
    root->set("a", xbr::integerValue(1));
    root->set("b", "new");
    xbr::Ref<xbr::IAttributes> child;
    xbr::Ref<xbr::IAttributeQueue> queue;
    EXPECT_EQ(root->addAttributes(xbr::toText("child"), child.out()), xbr::kOk);
    EXPECT_EQ(root->addQueue(xbr::toText("queue"), queue.out()), xbr::kOk);
    std::string names;
    for (std::int32_t i = -1; i <= root->count(); ++i) {
        names += xbr::toString(root->nameAt(i)) + ",";
    }
    EXPECT_EQ(names, ",b,a,child,queue,,");
    EXPECT_EQ(root->getString("b") + "|" + root->getString("a"), "new|") << "a number is no text";
    EXPECT_EQ(root->get("child").object, xbr::query<xbr::IObject>(child.get()).get());
    EXPECT_EQ(root->get("queue").object, xbr::query<xbr::IObject>(queue.get()).get());
    Value value = xbr::boolValue(true);
    EXPECT_EQ(root->get(xbr::toText("c"), &value), xbr::kFalse);
    EXPECT_EQ(value.kind, ValueKind::kNone);

    EXPECT_EQ(queue->append(xbr::integerValue(1)), xbr::kOk);
    EXPECT_EQ(queue->appendAttributes(child.out()), xbr::kOk);
    xbr::Ref<xbr::IAttributeQueue> inner;
    EXPECT_EQ(queue->appendQueue(inner.out()), xbr::kOk);
    ASSERT_EQ(queue->count(), 3);
    for (const std::int32_t at : {-1, 0, 1, 2, 3}) {
        EXPECT_EQ(queue->at(at, &value), at < 0 || at > 2 ? xbr::kInvalidArgument : xbr::kOk);
        EXPECT_EQ(xbr::integerOf(value, 0), at == 0 ? 1 : 0);
        const auto expected = at == 1   ? xbr::query<xbr::IObject>(child.get())
                              : at == 2 ? xbr::query<xbr::IObject>(inner.get())
                                        : nullptr;
        EXPECT_EQ(value.kind == ValueKind::kObject ? value.object : nullptr, expected.get());
    }
}

TEST(Message, CarriesItsArguments) {
    const auto message = xbr::make<xbr::Message>(
        "name", std::initializer_list<Value>{xbr::integerValue(1), xbr::textValue("b")});
    ASSERT_EQ(message->countArguments(), 2);
    EXPECT_EQ(xbr::textOf(message->argument(1)), "b");
    for (const std::int32_t outside : {-1, 2}) {
        EXPECT_EQ(message->argument(outside).kind, ValueKind::kNone);
    }
}

} // namespace
