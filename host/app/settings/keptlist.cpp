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

void writeKeptList(const QString& path, std::size_t count,
                   const std::function<QJsonObject(std::size_t index)>& entry) {
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return;
    }
    file.write("[");
    for (std::size_t i = 0; i < count; ++i) {
        file.write(i == 0 ? "\n" : ",\n");
        file.write(QJsonDocument(entry(i)).toJson(QJsonDocument::Compact));
    }
    file.write("\n]\n");
    file.commit();
}

} // namespace xbr::host
