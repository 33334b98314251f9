#include "host/app/core/configurationstore.h"

#include "framework/support/text.h"
#include "framework/support/value.h"

#include <algorithm>

namespace xbr::host {

namespace {

constexpr std::string_view kServerKey = "ServerURL";
constexpr std::string_view kNeededKeys[] = {kServerKey, "ConsumerKey", "ConsumerSecret", "CallbackURL"};

std::string valueOf(const Settings& settings, std::string_view key) {
    const auto found =
        std::find_if(settings.begin(), settings.end(), [&](const auto& pair) { return pair.first == key; });
    return found == settings.end() ? std::string() : found->second;
}

void describe(const Settings& settings, ConfigurationReport& report) {
    report.serverUrl = valueOf(settings, kServerKey);
    report.missingKeys.clear();
    for (const auto key : kNeededKeys) {
        if (valueOf(settings, key).empty()) {
            report.missingKeys.emplace_back(key);
        }
    }
}

} // namespace

Result ConfigurationStore::load(IAttributes* out, Text id, Text title, std::int32_t profile,
                                std::int32_t mode) noexcept {
    static constexpr std::int32_t kRead = 1;
    if (!out || id.length == 0 || profile != 0 || mode != kRead) {
        return kInvalidArgument;
    }
    const std::string path = configurationPath();
    Settings settings;
    const auto result = readConfiguration(path, view(id), settings);
    *m_report = {true, result, path, toString(id), toString(title), {}, {}};
    describe(settings, *m_report);
    for (const auto& [key, value] : settings) {
        out->set(toText(key), textValue(value));
    }
    switch (result) {
    case ConfigurationResult::kRead:
        return kOk;
    case ConfigurationResult::kAbsent:
        return kFalse;
    case ConfigurationResult::kUnreadable:
        break;
    }
    return kUnexpected;
}

} // namespace xbr::host
