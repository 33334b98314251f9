#include "host/app/settings/keptlist.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace xbr::host {

std::optional<QJsonArray> readKeptList(const QString& path, qint64 mostBytes) {
    QFile file(path);
    if (!file.exists()) {
        return QJsonArray();
    }
    if (!file.open(QIODevice::ReadOnly) || file.size() > mostBytes) {
        return std::nullopt;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    return document.isArray() ? std::optional(document.array()) : std::nullopt;
}

void writeKeptList(const QString& path, const QJsonArray& list) {
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(list).toJson());
        file.commit();
    }
}

} // namespace xbr::host
