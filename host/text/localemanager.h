#pragma once

#include "framework/abi/locale.h"
#include "framework/support/object.h"

namespace xbr::host {

/// Finds the translations that a module carries for the user's languages.
///
/// The languages are those of the environment in the user's order of preference, by the rules of GNU gettext
/// (LANGUAGE, LC_ALL, LC_MESSAGES, LANG). For each one the file of its full name ("pt_BR.qm") comes before
/// the language's own
/// ("pt.qm"). A module's source texts are English and their context is the module's name.
class LocaleManager final : public Object<ILocaleManager> {
public:
    Result getTable(Text module, ITranslationTable** out) noexcept override;
};

} // namespace xbr::host
