#include "framework/abi/dates.h"
#include "framework/abi/locale.h"
#include "framework/support/objects/ref.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace xbr::host::tests {
namespace {

class DateTest : public testing::Test {
protected:
    ~DateTest() override {
        setZone("UTC");
        setLocale("C", "", "");
    }

    static void set(const char* name, const std::string& value) {
        setenv(name, value.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
    }
    static void setLocale(const std::string& lang, const std::string& time, const std::string& all) {
        set("LANG", lang);
        set("LC_TIME", time);
        set("LC_ALL", all);
    }
    static void setZone(const std::string& zone) {
        set("TZ", zone);
        tzset(); // NOLINT(concurrency-mt-unsafe)
    }
    static std::string written(const Date& date, std::int32_t format = IDateFormats::kLongDate,
                               Result expected = kOk) {
        Ref<IString> text;
        EXPECT_EQ(formats()->formatDate(date, format, text.out()), expected);
        return take(text);
    }
    static Ref<IDateFormats> formats() { return query<IDateFormats>(XBRGetLocaleManager()); }
};

TEST_F(DateTest, IsWrittenAsTheLocaleDoes) {
    struct {
        const char* lang;
        const char* time;
        const char* all;
        const char* written;
    } const cases[] = {
        {"C", "", "", "Monday, 1 January 1900"},
        {"", "", "", "Monday, 1 January 1900"},
        {"en_GB.UTF-8", "", "", "Monday, 1 January 1900"},
        {"en_US.UTF-8", "", "", "Monday, January 1, 1900"},
        {"en_US.UTF-8", "de_DE.UTF-8", "", "Montag, 1. Januar 1900"},
        {"en_US.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "lundi 1 janvier 1900"},
        {"nonsense", "", "", "Monday, 1 January 1900"},
    };
    for (const auto& one : cases) {
        setLocale(one.lang, one.time, one.all);
        EXPECT_EQ(written({1900, 1, 1}), one.written) << one.lang << one.time << one.all;
    }
    setLocale("C", "", "");
    EXPECT_EQ(written({9999, 12, 31}), "Friday, 31 December 9999");
    EXPECT_EQ(written({2024, 2, 29}), "Thursday, 29 February 2024");
    for (const Date& date : {Date{2023, 2, 29}, Date{2024, 13, 1}, Date{2024, 1, 0}, Date{0, 1, 1},
                             Date{-5, 1, 1}, Date{10000, 1, 1}}) {
        EXPECT_EQ(written(date, IDateFormats::kLongDate, kInvalidArgument), "");
    }
    EXPECT_EQ(written({1900, 1, 1}, 6, kNotImplemented), "");
}

TEST_F(DateTest, IsTheDayInTheUsersZone) {
    struct {
        const char* zone;
        std::int64_t time;
        Date date;
    } const cases[] = {
        {"UTC", 0, {1970, 1, 1}},
        {"America/New_York", 0, {1969, 12, 31}},
        {"Asia/Tokyo", 1'748'822'400, {2025, 6, 2}},
        {"UTC", 1'748'822'399, {2025, 6, 1}},
        {"UTC", -62'135'596'800, {1, 1, 1}},
    };
    for (const auto& one : cases) {
        setZone(one.zone);
        Date date{};
        ASSERT_EQ(formats()->getLocalDate(one.time, &date), kOk) << one.zone << one.time;
        EXPECT_EQ(date.year, one.date.year) << one.zone << one.time;
        EXPECT_EQ(date.month, one.date.month);
        EXPECT_EQ(date.day, one.date.day);
    }
    for (const std::int64_t time :
         {INT64_MIN, INT64_MAX, std::int64_t{-70'000'000'000}, std::int64_t{300'000'000'000}}) {
        Date date{};
        EXPECT_EQ(formats()->getLocalDate(time, &date), kInvalidArgument) << time;
    }
}

} // namespace
} // namespace xbr::host::tests
