#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <string>
#include <vector>

class QDropEvent;
class QWidget;

namespace xbr::host {

/// What a file dialog offers: the audio files that the list takes.
QString songFileFilter();

/// The files that locations stand for: files as they are, of folders the audio files in them and below, in
/// the order of their names, up to a bound. What is not of this computer is left out.
std::vector<std::string> songFilesOf(const QList<QUrl>& locations);

/// Makes a widget a target for dropped files: it bears the property "dropTarget" while they hover over it.
class FileDrop final : public QObject {
    Q_OBJECT

public:
    /// `shown` bears the property; `receiver` gets the events, and is `shown` or its viewport.
    FileDrop(QWidget& shown, QWidget& receiver);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void filesDropped(const std::vector<std::string>& paths);

private:
    void hover(QDropEvent& event);
    void setTarget(bool isTarget);

    QWidget* m_shown;
};

} // namespace xbr::host
