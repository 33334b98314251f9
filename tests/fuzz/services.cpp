#include "host/app/settings/configurationfile.h"
#include "host/base/weburl.h"
#include "tests/fuzz/fuzz.h"

/// services.ini: keys are there once, and values bear no white space at their ends.
void fuzz::read(std::string_view input) {
    xbr::host::Settings settings;
    xbr::host::readConfiguration(fileOf("services.ini", input), "brindlex", settings);
    for (const auto& [key, value] : settings) {
        expect(xbr::host::valueOf(settings, key) == value);
        expect(value.empty() ||
               (value.front() != ' ' && value.back() != ' ' && value.find('\n') == std::string::npos));
        xbr::host::isWebAddress(std::string_view(value));
    }
}
