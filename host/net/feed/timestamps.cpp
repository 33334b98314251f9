#include "host/net/feed/timestamps.h"

#include "framework/support/objects/text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;

/// A date and the clock at a place.
struct Moment {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::int64_t offset = 0; ///< seconds that the clock is ahead of UTC
};

std::optional<std::int64_t> toSeconds(const Moment& moment) {
    const std::chrono::year_month_day date{std::chrono::year(moment.year),
                                           std::chrono::month(static_cast<unsigned>(moment.month)),
                                           std::chrono::day(static_cast<unsigned>(moment.day))};
    if (!date.ok() || moment.hour > 23 || moment.minute > 59 || moment.second > 60) {
        return std::nullopt;
    }
    const std::int64_t days = std::chrono::sys_days(date).time_since_epoch().count();
    return days * kDay + moment.hour * kHour + moment.minute * kMinute + moment.second - moment.offset;
}

/// Takes a text apart from its front. What does not fit makes it fail, once and for all.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    bool failed() const { return m_failed; }
    bool atEnd() const { return m_rest.empty(); }
    char peek() const { return m_rest.empty() ? '\0' : m_rest.front(); }

    void expect(std::string_view anyOf) {
        if (m_rest.empty() || anyOf.find(m_rest.front()) == std::string_view::npos) {
            m_failed = true;
        } else {
            m_rest.remove_prefix(1);
        }
    }

    bool skip(char c) {
        const bool isThere = peek() == c;
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    /// A number of at least `minimum` and at most `maximum` digits.
    int number(int minimum, int maximum) {
        int value = 0;
        int digits = 0;
        for (; digits < maximum && isDigit(peek()); ++digits) {
            value = value * 10 + (peek() - '0');
            m_rest.remove_prefix(1);
        }
        m_failed = m_failed || digits < minimum;
        return value;
    }

    void skipDigits() {
        while (isDigit(peek())) {
            m_rest.remove_prefix(1);
        }
    }

    void skipBlanks() {
        while (peek() == ' ' || peek() == '\t') {
            m_rest.remove_prefix(1);
        }
    }

    /// Letters, in lower case.
    std::string word() {
        const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
        const auto* end = std::find_if_not(m_rest.begin(), m_rest.end(), isLetter);
        const auto length = static_cast<std::size_t>(end - m_rest.begin());
        std::string found = asciiLower(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        return found;
    }

    /// "+hh:mm", with or without the colon.
    std::int64_t offset() {
        const bool isBehind = peek() == '-';
        expect("+-");
        const int hours = number(2, 2);
        skip(':');
        const int minutes = number(2, 2);
        m_failed = m_failed || hours > 23 || minutes > 59;
        return (hours * kHour + minutes * kMinute) * (isBehind ? -1 : 1);
    }

private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    std::string_view m_rest;
    bool m_failed = false;
};

int monthOf(std::string_view name) {
    static constexpr std::array<std::string_view, 12> kMonths = {"jan", "feb", "mar", "apr", "may", "jun",
                                                                 "jul", "aug", "sep", "oct", "nov", "dec"};
    const auto* found = std::find(kMonths.begin(), kMonths.end(), name.substr(0, 3));
    return found == kMonths.end() ? 0 : static_cast<int>(found - kMonths.begin()) + 1;
}

/// Hours ahead of UTC. Zones that nobody knows count as UTC, as RFC 2822 (4.3) wants it.
std::int64_t zoneOffset(std::string_view name) {
    static constexpr std::pair<std::string_view, int> kZones[] = {{"est", -5}, {"edt", -4}, {"cst", -6},
                                                                  {"cdt", -5}, {"mst", -7}, {"mdt", -6},
                                                                  {"pst", -8}, {"pdt", -7}};
    for (const auto& [zone, hours] : kZones) {
        if (zone == name) {
            return hours * kHour;
        }
    }
    return 0;
}

/// Years of two digits by RFC 2822 (4.3).
int fullYear(int year) {
    if (year >= 1000) {
        return year;
    }
    return year < 50 ? 2000 + year : 1900 + year;
}

} // namespace

std::optional<std::int64_t> parseRfc3339(std::string_view text) {
    Scanner scanner(trim(text));
    Moment moment;
    moment.year = scanner.number(4, 4);
    scanner.expect("-");
    moment.month = scanner.number(2, 2);
    scanner.expect("-");
    moment.day = scanner.number(2, 2);
    scanner.expect("Tt ");
    moment.hour = scanner.number(2, 2);
    scanner.expect(":");
    moment.minute = scanner.number(2, 2);
    scanner.expect(":");
    moment.second = scanner.number(2, 2);
    if (scanner.skip('.')) {
        scanner.number(1, 1);
        scanner.skipDigits();
    }
    if (!scanner.skip('Z') && !scanner.skip('z')) {
        moment.offset = scanner.offset();
    }
    return scanner.failed() || !scanner.atEnd() ? std::nullopt : toSeconds(moment);
}

std::optional<std::int64_t> parseRfc822(std::string_view text) {
    Scanner scanner(trim(text));
    Moment moment;
    if (!scanner.word().empty()) {
        scanner.skip(',');
        scanner.skipBlanks();
    }
    moment.day = scanner.number(1, 2);
    scanner.skipBlanks();
    moment.month = monthOf(scanner.word());
    scanner.skipBlanks();
    moment.year = fullYear(scanner.number(2, 4));
    scanner.skipBlanks();
    moment.hour = scanner.number(1, 2);
    scanner.expect(":");
    moment.minute = scanner.number(2, 2);
    if (scanner.skip(':')) {
        moment.second = scanner.number(2, 2);
    }
    scanner.skipBlanks();
    const bool hasOffset = scanner.peek() == '+' || scanner.peek() == '-';
    moment.offset = hasOffset ? scanner.offset() : zoneOffset(scanner.word());
    return scanner.failed() ? std::nullopt : toSeconds(moment);
}

} // namespace xbr::host
