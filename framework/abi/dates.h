#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// A day of the Gregorian calendar.
struct Date {
    std::int32_t year;  ///< 1 to 9999
    std::int32_t month; ///< 1 to 12
    std::int32_t day;   ///< 1 to 31
};

/// Writes dates for people; asked of the locale manager.
struct IDateFormats : IObject {
    static constexpr Uid kUid = uid("b132a841-bae7-4d33-a429-f752992b32b7");

    /// The whole date with the name of the month, as the user's locale writes it: "Monday, 1 January 1900".
    static constexpr std::int32_t kLongDate = 5;

    /// The day that the user's calendar showed at a time. kInvalidArgument: before the year 1 or after 9999.
    virtual Result getLocalDate(std::int64_t time, Date* out) noexcept = 0;

    /// Writes a date, handed over. kInvalidArgument: no such day; kNotImplemented: no such format.
    virtual Result formatDate(const Date& date, std::int32_t format, IString** out) noexcept = 0;
};

} // namespace xbr
