#include "host/gui/skin/stylesheet.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "host/gui/picture/svgimage.h"
#include "host/gui/skin/palette.h"

#include <QCryptographicHash>
#include <QPalette>
#include <QRegularExpression>
#include <QUrl>

namespace xbr::host {

namespace {

/// Writes a file once, and answers its URL; empty when that is not possible.
std::string keepFile(const QByteArray& contents) {
    Ref<IString> folder;
    if (XBRGetSystem()->getTemporaryFolder(folder.out()) != kOk) {
        return {};
    }
    const QByteArray name = QCryptographicHash::hash(contents, QCryptographicHash::Sha256).toHex();
    std::string url = take(folder) + "/skin/" + name.toStdString() + ".svg";
    if (XBRGetFileSystem()->fileExists(toText(url))) {
        return url;
    }
    Ref<IStream> stream;
    if (XBRGetFileSystem()->createFile(toText(url), stream.out()) != kOk) {
        return {};
    }
    std::uint64_t written = 0;
    const auto result =
        stream->write(contents.constData(), static_cast<std::uint64_t>(contents.size()), &written);
    return result == kOk ? url : std::string();
}

QString fileOf(const Skin& skin, const QString& image, const QPalette& palette) {
    const auto found = skin.images.find(image.toStdString());
    if (found == skin.images.end()) {
        return {};
    }
    const QColor colour = palette.color(QPalette::Active, QPalette::Text);
    return QUrl(QString::fromStdString(keepFile(colouredImage(found->second, colour)))).toLocalFile();
}

} // namespace

QString styleSheetFor(const Skin& skin, const QPalette& palette) {
    const bool isDark = appearanceOf(palette) == Appearance::kDark;
    const QString sheet = QString::fromStdString(skin.styleSheet + "\n" +
                                                 (isDark ? skin.darkStyleSheet : skin.lightStyleSheet));
    static const QRegularExpression kUrl(QStringLiteral(R"(url\(\s*["']?([^"')]*)["']?\s*\))"));
    QString resolved;
    qsizetype end = 0;
    for (auto matches = kUrl.globalMatch(sheet); matches.hasNext();) {
        const auto match = matches.next();
        resolved += QStringView(sheet).mid(end, match.capturedStart() - end);
        resolved += QStringLiteral("url(\"%1\")").arg(fileOf(skin, match.captured(1), palette));
        end = match.capturedEnd();
    }
    resolved += QStringView(sheet).mid(end);
    return resolved;
}

} // namespace xbr::host
