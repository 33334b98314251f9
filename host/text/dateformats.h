#pragma once

#include "framework/abi/dates.h"

namespace xbr::host {

/// The day that the calendar showed, in the time zone of the environment (TZ).
Result localDate(std::int64_t time, Date& out);

/// Writes a date as the locale of the environment does (LC_ALL, LC_TIME, LANG).
Result formattedDate(const Date& date, std::int32_t format, IString** out);

} // namespace xbr::host
