#pragma once

#include <QObject>
#include <QPalette>

namespace xbr::host {

class DesktopScheme;

enum class AppearanceChoice { kDesktop, kLight, kDark };

/// Light or dark for the whole program: as the user chose, or as the desktop is at the moment.
class AppearanceSetting final : public QObject {
    Q_OBJECT

public:
    explicit AppearanceSetting(QObject* parent);

    AppearanceChoice choice() const { return m_choice; }
    void setChoice(AppearanceChoice choice);

signals:
    /// The program's palette is another.
    void applied();

private:
    void apply();

    QPalette m_desktopPalette; ///< as it was before we set one
    DesktopScheme* m_desktop;
    AppearanceChoice m_choice = AppearanceChoice::kDesktop;
};

} // namespace xbr::host
