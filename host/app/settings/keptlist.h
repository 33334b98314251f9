#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>

namespace xbr::host {

/// A list that is kept from run to run, in a JSON file of the user's. Empty when there is none yet; nothing
/// when it cannot be read: no list, or beyond `mostBytes`.
std::optional<QJsonArray> readKeptList(const QString& path, qint64 mostBytes);

/// Makes the folder when it has to, and writes the file whole or not at all: a line for each entry, of which
/// one is in memory at a time.
void writeKeptList(const QString& path, std::size_t count,
                   const std::function<QJsonObject(std::size_t index)>& entry);

} // namespace xbr::host
