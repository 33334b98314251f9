#include "host/app/settings/configurationfile.h"

#include "framework/support/objects/text.h"

#include <QByteArrayView>
#include <QStandardPaths>
#include <QStringDecoder>
#include <QUrl>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace xbr::host {

namespace {

constexpr std::uintmax_t kMaximumSize = std::uintmax_t{1} << 20U;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isUtf8(const std::string& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(bytes));
    return !decoder.hasError() && decoded.size() <= static_cast<qsizetype>(bytes.size());
}

bool readText(const std::string& path, std::string& text) {
    std::error_code failed;
    const auto size = std::filesystem::file_size(path, failed);
    if (failed || size > kMaximumSize) {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    text = bytes.str();
    // An empty file leaves the stream failed, and is a file without settings.
    return (size == 0 || file.good()) && isUtf8(text);
}

void setValue(Settings& settings, std::string_view key, std::string_view value) {
    const auto found =
        std::find_if(settings.begin(), settings.end(), [&](const auto& pair) { return pair.first == key; });
    if (found == settings.end()) {
        settings.emplace_back(key, value);
    } else {
        found->second = value;
    }
}

} // namespace

std::string valueOf(const Settings& settings, std::string_view key) {
    const auto found =
        std::find_if(settings.begin(), settings.end(), [&](const auto& pair) { return pair.first == key; });
    return found == settings.end() ? std::string() : found->second;
}

std::string configurationPath() {
    // The environment is read on the main thread, and nothing in the host writes it.
    const char* path = std::getenv("XBRHOST_CONFIG"); // NOLINT(concurrency-mt-unsafe)
    if (path && *path) {
        return path;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString() +
           "/xbrhost/services.ini";
}

ConfigurationResult readConfiguration(const std::string& path, std::string_view section, Settings& settings) {
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) {
        return ConfigurationResult::kAbsent;
    }
    std::string text;
    if (!readText(path, text)) {
        return ConfigurationResult::kUnreadable;
    }
    std::istringstream lines(text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text);
    bool isFound = false;
    bool isInside = false;
    Settings found;
    for (std::string bytes; std::getline(lines, bytes);) {
        const auto line = trim(bytes);
        if (line.empty() || line.front() == ';' || line.front() == '#') {
            continue;
        }
        const auto equals = line.find('=');
        if (line.front() == '[' && line.back() == ']') {
            isInside = trim(line.substr(1, line.size() - 2)) == section;
            isFound = isFound || isInside;
        } else if (isInside && equals != std::string_view::npos) {
            setValue(found, trim(line.substr(0, equals)), trim(line.substr(equals + 1)));
        }
    }
    settings = std::move(found);
    return isFound ? ConfigurationResult::kRead : ConfigurationResult::kAbsent;
}

} // namespace xbr::host
