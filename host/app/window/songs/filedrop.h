#pragma once

#include <QObject>

#include <string>
#include <vector>

class QDropEvent;
class QWidget;

namespace xbr::host {

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
