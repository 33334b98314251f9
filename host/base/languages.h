#pragma once

#include <string>
#include <vector>

namespace xbr::host {

/// The user's languages as files of translations are named, the most wanted first and each followed by its
/// own language without the country ("pt_BR", "pt"), by the rules of GNU gettext (LANGUAGE, LC_ALL,
/// LC_MESSAGES, LANG). Ends where English is wanted: it is what the source texts are in.
std::vector<std::string> wantedLanguages();

} // namespace xbr::host
