#pragma once

#include "host/gui/hostwidgets.h"

#include <QDBusVariant>
#include <QObject>

#include <optional>

class QWidget;

namespace xbr::host {

/// Whether the desktop wants programs to be light or dark (the setting "color-scheme" of the namespace
/// "org.freedesktop.appearance" in XDG Desktop Portal's interface Settings).
class DesktopScheme final : public QObject {
    Q_OBJECT

public:
    explicit DesktopScheme(QObject* parent);

    /// Nothing when the desktop does not say.
    std::optional<Appearance> appearance() const { return m_appearance; }

signals:
    void changed();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void take(const QVariant& value);

    std::optional<Appearance> m_appearance;
};

/// Brings a window to the user's sight: shown, not minimised, on top and with the keyboard. Where the desktop
/// does not let programs do that, the window asks for attention instead.
void raise(QWidget& window);

} // namespace xbr::host
