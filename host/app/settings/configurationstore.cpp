#include "host/app/settings/configurationstore.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/app/settings/configurationfile.h"
#include "host/base/weburl.h"

#include <QUrl>

namespace xbr::host {

namespace {

constexpr std::string_view kServerKey = "ServerURL";
constexpr std::string_view kCallbackKey = "CallbackURL";
constexpr std::string_view kNeededKeys[] = {kServerKey, "ConsumerKey", "ConsumerSecret", kCallbackKey};

/// The browser comes back to any scheme that the desktop hands to us.
bool isAddress(const std::string& value) {
    const QUrl url(QString::fromStdString(value), QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty();
}

bool isWrong(std::string_view key, const std::string& value) {
    return (key == kServerKey && !isWebAddress(value)) || (key == kCallbackKey && !isAddress(value));
}

void examine(const Settings& settings, ConfigurationReport& report) {
    report.serverUrl = valueOf(settings, kServerKey);
    for (const auto key : kNeededKeys) {
        const std::string value = valueOf(settings, key);
        if (value.empty()) {
            report.missingKeys.emplace_back(key);
        } else if (isWrong(key, value)) {
            report.wrongKeys.emplace_back(key);
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
    *m_report = {true, result, path, toString(id), toString(title), {}, {}, {}};
    examine(settings, *m_report);
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

std::vector<ComponentProperty> configuredProperties(std::string_view module, std::string_view className) {
    Settings settings;
    if (className != "FeedElement" ||
        readConfiguration(configurationPath(), module, settings) != ConfigurationResult::kRead) {
        return {};
    }
    const std::string address = valueOf(settings, "FeedURL");
    return isWebAddress(address) ? std::vector<ComponentProperty>{{"url", address}}
                                 : std::vector<ComponentProperty>{};
}

} // namespace xbr::host
