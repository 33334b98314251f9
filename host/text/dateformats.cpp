#include "host/text/dateformats.h"

#include "framework/support/objects/text.h"

#include <QDateTime>
#include <QLocale>

#include <cstdlib>

namespace xbr::host {

namespace {

constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;

/// Rationale: QLocale::system() reads the environment by the same rules, and keeps the first answer for ever.
QLocale dateLocale() {
    for (const auto* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* value =
            std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing in the host sets variables
        if (value && *value != '\0') {
            return QLocale(QString::fromUtf8(value));
        }
    }
    return QLocale::c();
}

} // namespace

Result localDate(std::int64_t time, Date& out) {
    static constexpr std::int64_t kFarthest = 400'000'000'000; // beyond any year that is answered
    if (time < -kFarthest || time > kFarthest) {
        return kInvalidArgument;
    }
    const QDate date = QDateTime::fromSecsSinceEpoch(time).date();
    if (!date.isValid() || date.year() < kFirstYear || date.year() > kLastYear) {
        return kInvalidArgument;
    }
    out = {date.year(), date.month(), date.day()};
    return kOk;
}

Result formattedDate(const Date& date, std::int32_t format, IString** out) {
    *out = nullptr;
    const QDate day(date.year, date.month, date.day);
    if (!day.isValid() || date.year < kFirstYear || date.year > kLastYear) {
        return kInvalidArgument;
    }
    if (format != IDateFormats::kLongDate) {
        return kNotImplemented;
    }
    return giveText(dateLocale().toString(day, QLocale::LongFormat).toStdString(), out);
}

} // namespace xbr::host
