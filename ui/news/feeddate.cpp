#include "ui/news/feeddate.h"

#include "framework/abi/dates.h"
#include "framework/abi/locale.h"
#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

constexpr xbr::Date kNoDate{1900, 1, 1};

xbr::Date dateOf(const xbr::IFeedEntry& entry, xbr::IDateFormats& formats) {
    std::int64_t time = 0;
    xbr::Date date{};
    const bool hasTime = entry.getPublished(&time) == xbr::kOk || entry.getUpdated(&time) == xbr::kOk;
    return hasTime && formats.getLocalDate(time, &date) == xbr::kOk ? date : kNoDate;
}

} // namespace

std::string feedDate(const xbr::IFeedEntry& entry) {
    const auto formats = xbr::query<xbr::IDateFormats>(XBRGetLocaleManager());
    xbr::Ref<xbr::IString> text;
    const bool isWritten =
        formats &&
        formats->formatDate(dateOf(entry, *formats), xbr::IDateFormats::kLongDate, text.out()) == xbr::kOk;
    return isWritten ? take(text) : std::string();
}

} // namespace brindlex
