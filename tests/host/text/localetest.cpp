// Languages and dates, as the environment wants them.

#include "framework/abi/locale.h"

#include "framework/abi/dates.h"
#include "framework/abi/filesystem.h"
#include "framework/support/objects/text.h"
#include "tests/fixtures/testfolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace xbr::host::tests {
namespace {

/// With the resources of a module that has translations.
class Locale : public testing::Test {
protected:
    Locale() {
        XBRGetFileSystem()->registerResources(toText("brindlex"), resources.data(), resources.size());
    }
    ~Locale() override {
        XBRGetFileSystem()->unregisterResources(toText("brindlex"));
        setVariables({{"LANG", "C"}, {"LC_TIME", ""}, {"LC_ALL", ""}, {"LANGUAGE", ""}, {"TZ", "UTC"}});
    }

    static void setVariables(const std::vector<std::pair<const char*, const char*>>& variables) {
        for (const auto& [name, value] : variables) {
            setenv(name, value, 1); // NOLINT(concurrency-mt-unsafe): one thread
        }
        tzset(); // NOLINT(concurrency-mt-unsafe)
    }
    static Ref<ITranslationTable> tableOf(std::string_view module) {
        Ref<ITranslationTable> table;
        EXPECT_EQ(XBRGetLocaleManager()->getTable(toText(module), table.out()), kOk);
        return table;
    }
    static std::string translate(std::string_view source, ITranslationTable& table) {
        Ref<IString> text;
        EXPECT_EQ(table.translate(toText(source), text.out()), kOk);
        return take(text);
    }
    static std::string track() { return translate("Track", *tableOf("brindlex")); }

    static std::string written(const Date& date, Result expected = kOk,
                               std::int32_t format = IDateFormats::kLongDate) {
        Ref<IString> text;
        EXPECT_EQ(formats()->formatDate(date, format, text.out()), expected);
        return take(text);
    }
    static Ref<IDateFormats> formats() { return query<IDateFormats>(XBRGetLocaleManager()); }

    std::string resources = readFile(TRANSLATIONS);
};

TEST_F(Locale, theFirstLanguageThatIsThereIsTaken) {
    const struct {
        const char *lang, *all, *languages, *track;
    } table[] = {
        {"C.UTF-8", "nl_NL.UTF-8", "de_AT", "Lied"},
        {"C.UTF-8", "nl_NL.UTF-8", "pt_BR", "Faixa (BR)"},
        {"C.UTF-8", "nl_NL.UTF-8", "pt_PT", "Faixa (PT)"},
        {"C.UTF-8", "nl_NL.UTF-8", "en_GB:de", "Track"},
        {"C.UTF-8", "nl_NL.UTF-8", "ja:pt:de", "Faixa (PT)"},
        {"C.UTF-8", "nl_NL.UTF-8", "ja", "Track"},
        {"C.UTF-8", "nl_NL.UTF-8", "fr:de", "Track"}, // that file is no translation
        {"pt_BR.UTF-8", "", "", "Faixa (BR)"},
        {"pt_BR.UTF-8", "de_DE@euro", "", "Lied"},
        {"pt_BR.UTF-8", "C", "de", "Track"}, // the plain locale switches translations off
    };
    for (const auto& [lang, all, languages, expected] : table) {
        setVariables({{"LANG", lang}, {"LC_ALL", all}, {"LANGUAGE", languages}});
        EXPECT_EQ(track(), expected) << lang << ", " << all << ", " << languages;
    }
}

TEST_F(Locale, aTableAnswersTheSourceWhereItHasNoneAndOutlivesTheResources) {
    setVariables({{"LANG", "de_DE.UTF-8"}});
    const auto table = tableOf("brindlex");
    XBRGetFileSystem()->unregisterResources(toText("brindlex"));
    resources = std::string();
    EXPECT_EQ(translate("Track", *table), "Lied");
    for (const char* source : {"Upload & close", "Album", "", "nöt there"}) {
        EXPECT_EQ(translate(source, *table), source);
    }
    EXPECT_EQ(track(), "Track");
}

TEST_F(Locale, datesAreWrittenAsTheLocaleDoes) {
    const struct {
        const char *lang, *time, *all, *written;
    } cases[] = {
        {"", "", "", "Monday, 1 January 1900"},
        {"en_US.UTF-8", "", "", "Monday, January 1, 1900"},
        {"en_US.UTF-8", "de_DE.UTF-8", "", "Montag, 1. Januar 1900"},
        {"en_US.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "lundi 1 janvier 1900"},
        {"nonsense", "", "", "Monday, 1 January 1900"},
    };
    for (const auto& [lang, time, all, expected] : cases) {
        setVariables({{"LANG", lang}, {"LC_TIME", time}, {"LC_ALL", all}});
        EXPECT_EQ(written({1900, 1, 1}), expected) << lang << time << all;
    }
    EXPECT_EQ(written({9999, 12, 31}), "Friday, 31 December 9999");
    for (const Date& date : {Date{2023, 2, 29}, Date{0, 1, 1}, Date{-5, 1, 1}, Date{10000, 1, 1}}) {
        EXPECT_EQ(written(date, kInvalidArgument), "");
    }
    EXPECT_EQ(written({1900, 1, 1}, kNotImplemented, 6), "");
}

TEST_F(Locale, aDateIsTheDayInTheUsersZone) {
    const struct {
        const char* zone;
        std::int64_t time;
        Date date;
        Result result = kOk;
    } cases[] = {
        {"America/New_York", 0, {1969, 12, 31}},        {"Asia/Tokyo", 1'748'822'400, {2025, 6, 2}},
        {"UTC", 1'748'822'399, {2025, 6, 1}},           {"UTC", -62'135'596'800, {1, 1, 1}},
        {"UTC", 253'402'300'799, {9999, 12, 31}},       {"UTC", -62'135'596'801, {}, kInvalidArgument},
        {"UTC", 253'402'300'800, {}, kInvalidArgument}, {"UTC", INT64_MIN, {}, kInvalidArgument},
        {"UTC", INT64_MAX, {}, kInvalidArgument},
    };
    for (const auto& one : cases) {
        setVariables({{"TZ", one.zone}});
        Date date{};
        EXPECT_EQ(formats()->getLocalDate(one.time, &date), one.result) << one.zone << one.time;
        EXPECT_EQ(std::tuple(date.year, date.month, date.day),
                  std::tuple(one.date.year, one.date.month, one.date.day))
            << one.zone << one.time;
    }
}

} // namespace
} // namespace xbr::host::tests
