#include "host/app/window/songs/songfiles.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace xbr::host {

namespace {

/// Somebody will drop a whole disk.
constexpr std::size_t kGreatestCount = 10000;

const QStringList& patterns() {
    static const QStringList list{"*.wav", "*.aif", "*.aiff", "*.flac", "*.mp3", "*.ogg", "*.oga", "*.w64"};
    return list;
}

std::string encoded(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

void addFolder(const QString& folder, std::vector<std::string>& files) {
    std::vector<std::string> found;
    QDirIterator entries(folder, patterns(), QDir::Files | QDir::Readable, QDirIterator::Subdirectories);
    while (entries.hasNext() && files.size() + found.size() < kGreatestCount) {
        found.push_back(encoded(entries.next()));
    }
    std::sort(found.begin(), found.end());
    files.insert(files.end(), found.begin(), found.end());
}

} // namespace

QString songFileFilter() {
    QStringList all;
    for (const QString& pattern : patterns()) {
        all << pattern << pattern.toUpper();
    }
    return QString("%1 (%2)").arg(QCoreApplication::translate("xbr::host::Song", "Audio files"),
                                  all.join(' '));
}

std::vector<std::string> songFilesOf(const QList<QUrl>& locations) {
    std::vector<std::string> files;
    for (const QUrl& location : locations) {
        const QString path = location.toLocalFile();
        if (path.isEmpty() || files.size() >= kGreatestCount) {
            continue;
        }
        if (QFileInfo(path).isDir()) {
            addFolder(path, files);
        } else {
            files.push_back(encoded(QFileInfo(path).absoluteFilePath()));
        }
    }
    return files;
}

} // namespace xbr::host
