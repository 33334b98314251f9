#include "host/app/settings/configurationstore.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/app/settings/configurationfile.h"
#include "host/base/weburl.h"

#include <QHostAddress>
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

/// A token that goes to another computer unencrypted is anybody's.
bool isUnencrypted(const std::string& server) {
    const QUrl url(QString::fromStdString(server), QUrl::StrictMode);
    const QString host = url.host();
    const bool isThisComputer =
        host == "localhost" || host.endsWith(".localhost") || QHostAddress(host).isLoopback();
    return url.scheme() == "http" && !isThisComputer;
}

void examine(const Settings& settings, ConfigurationReport& report) {
    report.serverUrl = valueOf(settings, kServerKey);
    report.callbackUrl = valueOf(settings, kCallbackKey);
    report.isUnencrypted = isUnencrypted(report.serverUrl);
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
    *m_report = {true, result, path, toString(id), toString(title), {}, {}, {}, {}, false};
    examine(settings, *m_report);
    if (m_report->isUnencrypted) {
        return kUnexpected;
    }
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
