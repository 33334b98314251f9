#include "host/app/window/look/appearance.h"

#include "host/app/window/look/desktop.h"
#include "host/gui/hostwidgets.h"

#include <QApplication>

namespace xbr::host {

AppearanceSetting::AppearanceSetting(QObject* parent)
    : QObject(parent),
      m_desktopPalette(QGuiApplication::palette()),
      m_desktop(new DesktopScheme(this)) {
    connect(m_desktop, &DesktopScheme::changed, this, &AppearanceSetting::apply);
    apply();
}

void AppearanceSetting::setChoice(AppearanceChoice choice) {
    m_choice = choice;
    apply();
}

void AppearanceSetting::apply() {
    Appearance appearance = m_desktop->appearance().value_or(appearanceOf(m_desktopPalette));
    if (m_choice != AppearanceChoice::kDesktop) {
        appearance = m_choice == AppearanceChoice::kDark ? Appearance::kDark : Appearance::kLight;
    }
    QApplication::setPalette(hostPalette(appearance));
    emit applied();
}

} // namespace xbr::host
