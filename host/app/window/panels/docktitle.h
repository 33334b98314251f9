#pragma once

#include <QWidget>

class QDockWidget;

namespace xbr::host {

/// The title of a docked panel, with its buttons to float and to close it.
class DockTitle final : public QWidget {
    Q_OBJECT

public:
    explicit DockTitle(QDockWidget& dock);
};

} // namespace xbr::host
