#include "host/app/window/songs/songfiles.h"

#include "host/app/audio/audiofolder.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace xbr::host {

namespace {

std::string encoded(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

bool holdsFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

} // namespace

QString songFileFilter() {
    QStringList all;
    for (const std::string& extension : audioExtensions()) {
        const QString pattern = "*." + QString::fromStdString(extension);
        all << pattern << pattern.toUpper();
    }
    return QString("%1 (%2)").arg(QCoreApplication::translate("xbr::host::Song", "Audio files"),
                                  all.join(' '));
}

std::vector<std::string> songFilesOf(const QList<QUrl>& locations) {
    std::vector<std::string> files;
    for (const QUrl& location : locations) {
        const QString path = location.toLocalFile();
        if (path.isEmpty()) {
            continue;
        }
        const auto songs = audioFilesIn(encoded(path), true);
        if (songs) {
            files.insert(files.end(), songs->begin(), songs->end());
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
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                        event->type() == QEvent::Drop;
    if (isDrag && !holdsFiles(*static_cast<QDropEvent*>(event)->mimeData())) {
        return false; // rows of the list itself
    }
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
