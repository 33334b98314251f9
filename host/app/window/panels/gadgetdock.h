#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/window/panels/panelnotices.h"

#include <QDockWidget>

#include <functional>

namespace xbr::host {

/// The panel of a module, docked in the window. Must go before the session closes its panels.
class GadgetDock final : public QDockWidget {
    Q_OBJECT

public:
    /// Opens the panel; one that cannot be opened says so in its place.
    GadgetDock(const GadgetClass& gadget, DialogPlace& place,
               std::function<void(const QString&)> tellInDialog, QWidget* parent);
    ~GadgetDock() override;

    /// Null when the panel could not be opened.
    GadgetPanel* panel() const { return m_panel; }
    PanelNotices* notices() const { return m_notices; }

    /// To the user's sight, with the keyboard.
    void bringToFront();

    /// Selects a track; with the keyboard to a field of its editor where one is named.
    void showTrack(int row, const QString& parameter);

    /// The genres that the panel offers.
    QStringList genres() const;

private:
    void showForm(const GadgetClass& gadget);
    void showProblem(const QString& text);
    void showReason();

    GadgetPanel* m_panel = nullptr; ///< the session's
    PanelNotices* m_notices = nullptr;
    QWidget* m_form = nullptr;
};

} // namespace xbr::host
