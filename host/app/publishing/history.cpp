#include "host/app/publishing/history.h"

#include "host/app/publishing/song.h"
#include "host/app/settings/keptlist.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr qint64 kPart = 65536;         ///< bytes
constexpr qint64 kMostBytes = 10000000; ///< of the history's file

std::string usualPath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QFile::encodeName(folder + "/xbrhost/published.json").toStdString();
}

Publication publicationOf(const QJsonObject& object) {
    return {object["file"].toString().toStdString(), object["sha256"].toString().toStdString(),
            object["account"].toString().toStdString(), object["time"].toInteger()};
}

QJsonObject objectOf(const Publication& publication) {
    return {{"file", QString::fromStdString(publication.file)},
            {"sha256", QString::fromStdString(publication.fingerprint)},
            {"account", QString::fromStdString(publication.account)},
            {"time", static_cast<qint64>(publication.time)}};
}

} // namespace

History::History(std::string path) : m_path(path.empty() ? usualPath() : std::move(path)) {
    read();
}

std::string History::fingerprintOf(const std::string& path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::number(file.size()));
    for (const qint64 place : {qint64{0}, file.size() / 2, std::max(file.size() - kPart, qint64{0})}) {
        file.seek(place);
        hash.addData(file.read(kPart));
    }
    return hash.result().toHex().toStdString();
}

void History::read() {
    const auto kept = readKeptList(QFile::decodeName(m_path.c_str()), kMostBytes);
    m_isReadable = kept.has_value();
    for (const auto& each : kept.value_or(QJsonArray())) {
        m_all.push_back(publicationOf(each.toObject()));
    }
}

std::optional<Publication> History::find(const std::string& path, const std::string& account) const {
    return isEmpty() ? std::nullopt : findFingerprint(fingerprintOf(path), account);
}

std::optional<Publication> History::findFingerprint(const std::string& fingerprint,
                                                    const std::string& account) const {
    const auto found = std::find_if(m_all.rbegin(), m_all.rend(), [&](const Publication& each) {
        return !fingerprint.empty() && each.fingerprint == fingerprint &&
               (account.empty() || each.account.empty() || each.account == account);
    });
    return found == m_all.rend() ? std::nullopt : std::optional(*found);
}

void History::add(const std::vector<std::string>& paths, const std::string& account) {
    for (const std::string& path : paths) {
        if (const std::string fingerprint = fingerprintOf(path); !fingerprint.empty()) {
            m_all.push_back({fileNameOf(path), fingerprint, account, QDateTime::currentSecsSinceEpoch()});
        }
    }
    if (m_isReadable && !paths.empty()) {
        write();
    }
}

void History::write() const {
    writeKeptList(QFile::decodeName(m_path.c_str()), m_all.size(),
                  [this](std::size_t i) { return objectOf(m_all[i]); });
}

} // namespace xbr::host
