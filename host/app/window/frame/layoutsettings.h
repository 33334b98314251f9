#pragma once

#include "host/app/window/look/appearance.h"

#include <QSettings>

class QHeaderView;
class QMainWindow;

namespace xbr::host {

/// What the window remembers from run to run: where it was, how it was laid out, light or dark. In the file
/// "xbrhost/window.ini" of the user's configuration folder; nothing secret is ever in it.
class LayoutSettings {
public:
    LayoutSettings();

    /// False when there is nothing to restore, or none of it fits.
    bool restore(QMainWindow& window, QHeaderView& columns);
    void save(const QMainWindow& window, const QHeaderView& columns);

    AppearanceChoice appearance() const;
    void setAppearance(AppearanceChoice choice);

private:
    QSettings m_settings;
};

} // namespace xbr::host
