#include "host/net/download/downloadrules.h"

#include "framework/support/data/url.h"
#include "framework/support/objects/text.h"
#include "host/base/qttext.h"
#include "host/net/http/requesturl.h"

#include <QUrl>

#include <algorithm>
#include <charconv>

namespace xbr::host {

namespace {

QUrl parse(std::string_view text) {
    return QUrl(toQString(text));
}

/// Seconds as these headers give them (RFC 9111, section 1.2.2): too many are very many, anything else none.
std::int64_t seconds(std::string_view text) {
    static constexpr std::int64_t kVeryMany = 2'147'483'648;
    text = trim(text);
    if (text.size() > 1 && text.front() == '"' && text.back() == '"') {
        text = text.substr(1, text.size() - 2);
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || end != text.data() + text.size() || text.front() == '-') {
        return 0;
    }
    return error == std::errc() ? std::min(value, kVeryMany) : kVeryMany;
}

void apply(std::string_view directive, CachePolicy& policy) {
    const auto equals = std::min(directive.find('='), directive.size());
    const std::string name = asciiLower(trim(directive.substr(0, equals)));
    if (name == "no-store") {
        policy.mayBeKept = false;
    } else if (name == "no-cache") {
        policy.lifetime = 0;
    } else if (name == "max-age" && policy.lifetime != 0) {
        policy.lifetime = seconds(directive.substr(std::min(equals + 1, directive.size())));
    }
}

} // namespace

DownloadSource downloadSource(std::string_view url) {
    const std::string protocol = Url(url).protocol();
    if (protocol == "file" || protocol == "resource") {
        return DownloadSource::kFile;
    }
    const bool isWeb = (protocol == "http" || protocol == "https") && requestHost(url);
    return isWeb ? DownloadSource::kWeb : DownloadSource::kNone;
}

std::optional<std::string> redirectTarget(std::string_view from, std::string_view location) {
    const QUrl start = parse(from);
    const QUrl target = start.resolved(parse(location)).adjusted(QUrl::RemoveFragment);
    std::string text = target.toString(QUrl::FullyEncoded).toStdString();
    const bool isDowngrade = start.scheme() == u"https" && target.scheme() != u"https";
    if (location.empty() || isDowngrade || downloadSource(text) != DownloadSource::kWeb) {
        return std::nullopt;
    }
    return text;
}

CachePolicy cachePolicy(std::string_view cacheControl, std::string_view age) {
    CachePolicy policy;
    while (!cacheControl.empty()) {
        const auto comma = std::min(cacheControl.find(','), cacheControl.size());
        apply(cacheControl.substr(0, comma), policy);
        cacheControl.remove_prefix(std::min(comma + 1, cacheControl.size()));
    }
    if (policy.lifetime > 0) {
        policy.lifetime = std::max<std::int64_t>(policy.lifetime - seconds(age), 0);
    }
    return policy;
}

} // namespace xbr::host
