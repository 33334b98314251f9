#include "host/base/languages.h"

#include <cstdlib>
#include <sstream>

namespace xbr::host {

namespace {

std::string environment(const char* name) {
    const char* value =
        std::getenv(name); // NOLINT(concurrency-mt-unsafe): nothing in the host sets variables
    return value ? value : std::string();
}

/// Separated by ':'; empty for none.
/// Rationale: QLocale reads the environment by the same rules, and keeps the first answer for ever.
std::string languageList() {
    std::string locale;
    for (const auto* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = locale.empty() ? environment(variable) : locale;
    }
    if (locale.empty() || locale == "POSIX" || locale == "C" || locale.starts_with("C.")) {
        return {};
    }
    const std::string languages = environment("LANGUAGE");
    return languages.empty() ? locale : languages;
}

} // namespace

std::vector<std::string> wantedLanguages() {
    std::vector<std::string> names;
    std::istringstream languages(languageList());
    for (std::string language; std::getline(languages, language, ':');) {
        language = language.substr(0, language.find_first_of(".@")); // no encoding, no variant
        const std::string base = language.substr(0, language.find('_'));
        if (base == "en" || base == "C" || base == "POSIX") {
            break;
        }
        names.insert(names.end(), {language, base});
    }
    return names;
}

} // namespace xbr::host
