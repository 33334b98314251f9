#pragma once

#include "framework/abi/dates.h"
#include "framework/abi/locale.h"
#include "framework/support/objects/object.h"

namespace xbr::host {

/// Finds the translations that a module carries for the user's languages, and writes dates for the user.
///
/// The languages are those that the user wants (host/base/languages.h). A module's source texts are English
/// and their context is the module's name.
class LocaleManager final : public Object<ILocaleManager, IDateFormats> {
public:
    Result getTable(Text module, ITranslationTable** out) noexcept override;
    Result getLocalDate(std::int64_t time, Date* out) noexcept override;
    Result formatDate(const Date& date, std::int32_t format, IString** out) noexcept override;
};

/// The day that the calendar showed, in the time zone of the environment (TZ).
Result localDate(std::int64_t time, Date& out);

/// Writes a date as the locale of the environment does (LC_ALL, LC_TIME, LANG).
Result formattedDate(const Date& date, std::int32_t format, IString** out);

} // namespace xbr::host
