#include "host/net/download/downloadrules.h"

#include "framework/support/data/url.h"
#include "host/net/http/requesturl.h"

#include <QUrl>

namespace xbr::host {

namespace {

QUrl parse(std::string_view text) {
    return QUrl(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
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

} // namespace xbr::host
