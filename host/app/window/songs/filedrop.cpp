#include "host/app/window/songs/filedrop.h"

#include "host/app/window/songs/songfiles.h"

#include <QDropEvent>
#include <QMimeData>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace xbr::host {

namespace {

bool holdsFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

} // namespace

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
