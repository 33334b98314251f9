#include "host/app/window/songs/songfiles.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QStyle>
#include <QWidget>

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

bool holdsFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
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

FileDrop::FileDrop(QWidget& shown, QWidget& receiver) : QObject(&shown), m_shown(&shown) {
    receiver.setAcceptDrops(true);
    receiver.installEventFilter(this);
}

void FileDrop::setTarget(bool isTarget) {
    m_shown->setProperty("dropTarget", isTarget);
    m_shown->style()->unpolish(m_shown);
    m_shown->style()->polish(m_shown);
    m_shown->update();
}

void FileDrop::hover(QDropEvent& event) {
    if (holdsFiles(*event.mimeData())) {
        event.setDropAction(Qt::CopyAction); // never a move: the songs stay where they are
        event.accept();
    } else {
        event.ignore();
    }
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
        hover(static_cast<QDropEvent&>(*event));
        setTarget(event->isAccepted());
        return true;
    case QEvent::DragMove:
        hover(static_cast<QDropEvent&>(*event));
        return true;
    case QEvent::DragLeave:
        setTarget(false);
        return true;
    case QEvent::Drop:
        setTarget(false);
        hover(static_cast<QDropEvent&>(*event));
        emit filesDropped(songFilesOf(static_cast<QDropEvent&>(*event).mimeData()->urls()));
        return true;
    default:
        return false;
    }
}

} // namespace xbr::host
