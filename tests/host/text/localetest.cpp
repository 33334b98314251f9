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
        setVariables({{"LANG", "C"}, {"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LC_TIME", ""}, {"LANGUAGE", ""}});
        XBRGetFileSystem()->registerResources(toText("brindlex"), resources.data(), resources.size());
    }
    ~Locale() override { XBRGetFileSystem()->unregisterResources(toText("brindlex")); }

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

TEST_F(Locale, datesAreThoseOfTheUsersLocaleAndZone) {
    constexpr std::int64_t kFirst = -2'208'988'800;
    const struct {
        const char *lang, *time, *all, *zone;
        std::int64_t seconds;
        const char* written; ///< empty for no date
    } cases[] = {
        {"", "", "", "UTC", kFirst, "Monday, 1 January 1900"},
        {"en_US.UTF-8", "", "", "UTC", kFirst, "Monday, January 1, 1900"},
        {"en_US.UTF-8", "de_DE.UTF-8", "", "UTC", kFirst, "Montag, 1. Januar 1900"},
        {"en_US.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "UTC", kFirst, "lundi 1 janvier 1900"},
        {"nonsense", "", "", "UTC", kFirst, "Monday, 1 January 1900"},
        {"C", "", "", "America/New_York", 0, "Wednesday, 31 December 1969"},
        {"C", "", "", "Asia/Tokyo", 1'748'822'400, "Monday, 2 June 2025"},
        {"C", "", "", "UTC", -62'135'596'800, "Monday, 1 January 0001"},
        {"C", "", "", "UTC", -62'135'596'801, ""},
        {"C", "", "", "UTC", 253'402'300'799, "Friday, 31 December 9999"},
        {"C", "", "", "UTC", 253'402'300'800, ""},
        {"C", "", "", "UTC", INT64_MIN, ""},
        {"C", "", "", "UTC", INT64_MAX, ""},
    };
    for (const auto& [lang, time, all, zone, seconds, expected] : cases) {
        setVariables({{"LANG", lang}, {"LC_TIME", time}, {"LC_ALL", all}, {"TZ", zone}});
        Date date{};
        const bool isDate = formats()->getLocalDate(seconds, &date) == kOk;
        EXPECT_EQ(written(date, isDate ? kOk : kInvalidArgument), expected) << lang << zone << seconds;
    }
    for (const Date& date : {Date{2023, 2, 29}, Date{-5, 1, 1}, Date{10000, 1, 1}}) {
        EXPECT_EQ(written(date, kInvalidArgument), "");
    }
    EXPECT_EQ(written({1900, 1, 1}, kNotImplemented, 6), "");
}

} // namespace
} // namespace xbr::host::tests
