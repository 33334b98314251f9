#pragma once

#include <QJsonArray>
#include <QString>

#include <optional>

namespace xbr::host {

/// A list that is kept from run to run, in a JSON file of the user's. Empty when there is none yet; nothing
/// when it cannot be read: no list, or beyond `mostBytes`.
std::optional<QJsonArray> readKeptList(const QString& path, qint64 mostBytes);

/// Makes the folder when it has to, and writes the file whole or not at all.
void writeKeptList(const QString& path, const QJsonArray& list);

} // namespace xbr::host
