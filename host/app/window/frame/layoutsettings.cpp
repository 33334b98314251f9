#include "host/app/window/frame/layoutsettings.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QStandardPaths>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr int kLayoutVersion = 2; ///< of the docks and columns; older layouts are forgotten

struct ChoiceName {
    AppearanceChoice choice;
    const char* name;
};

constexpr ChoiceName kChoices[] = {{AppearanceChoice::kDesktop, "desktop"},
                                   {AppearanceChoice::kLight, "light"},
                                   {AppearanceChoice::kDark, "dark"}};

QString settingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/xbrhost/window.ini";
}

} // namespace

LayoutSettings::LayoutSettings() : m_settings(settingsPath(), QSettings::IniFormat) {}

bool LayoutSettings::restore(QMainWindow& window, QHeaderView& columns) {
    if (m_settings.value("version").toInt() != kLayoutVersion) {
        return false;
    }
    columns.restoreState(m_settings.value("columns").toByteArray());
    const bool hasGeometry = window.restoreGeometry(m_settings.value("geometry").toByteArray());
    return window.restoreState(m_settings.value("docks").toByteArray(), kLayoutVersion) && hasGeometry;
}

void LayoutSettings::save(const QMainWindow& window, const QHeaderView& columns) {
    m_settings.setValue("version", kLayoutVersion);
    m_settings.setValue("geometry", window.saveGeometry());
    m_settings.setValue("docks", window.saveState(kLayoutVersion));
    m_settings.setValue("columns", columns.saveState());
}

AppearanceChoice LayoutSettings::appearance() const {
    const QString name = m_settings.value("appearance").toString();
    const auto* found = std::find_if(std::begin(kChoices), std::end(kChoices),
                                     [&name](const ChoiceName& each) { return name == each.name; });
    return found == std::end(kChoices) ? AppearanceChoice::kDesktop : found->choice;
}

void LayoutSettings::setAppearance(AppearanceChoice choice) {
    for (const ChoiceName& each : kChoices) {
        if (each.choice == choice) {
            m_settings.setValue("appearance", each.name);
        }
    }
}

} // namespace xbr::host
