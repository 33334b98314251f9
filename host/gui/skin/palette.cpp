#include "host/gui/skin/palette.h"

#include <QPalette>

namespace xbr::host {

namespace {

/// The colours of one appearance, all with at least 4.5:1 between text and ground.
struct Colours {
    QRgb window, base, alternate, text, dimmed, button, accent, onAccent, line, shadow;
};

constexpr Colours kLight{0xF4F5F7, 0xFFFFFF, 0xF8F9FB, 0x1D2127, 0x646C78,
                         0xFFFFFF, 0x2458C5, 0xFFFFFF, 0xC9CED6, 0x9AA2AE};
constexpr Colours kDark{0x23262B, 0x1B1D21, 0x202327, 0xE6E8EB, 0x9BA3AF,
                        0x31353C, 0x7DAAFF, 0x10182A, 0x454B55, 0x0E0F11};

QColor between(QRgb a, QRgb b) {
    const QColor first(a);
    const QColor second(b);
    return {(first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
            (first.blue() + second.blue()) / 2};
}

} // namespace

QPalette hostPalette(Appearance appearance) {
    const Colours& colours = appearance == Appearance::kDark ? kDark : kLight;
    QPalette palette(QColor(colours.text), QColor(colours.button), QColor(colours.base), QColor(colours.line),
                     between(colours.line, colours.base), QColor(colours.text), QColor(colours.text),
                     QColor(colours.base), QColor(colours.window));
    palette.setColor(QPalette::AlternateBase, QColor(colours.alternate));
    palette.setColor(QPalette::Shadow, QColor(colours.shadow));
    palette.setColor(QPalette::PlaceholderText, QColor(colours.dimmed));
    palette.setColor(QPalette::Highlight, QColor(colours.accent));
    palette.setColor(QPalette::HighlightedText, QColor(colours.onAccent));
    palette.setColor(QPalette::Link, QColor(colours.accent));
    palette.setColor(QPalette::LinkVisited, QColor(colours.accent));
    palette.setColor(QPalette::ToolTipBase, QColor(colours.base));
    palette.setColor(QPalette::ToolTipText, QColor(colours.text));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, between(colours.dimmed, colours.window));
    }
    return palette;
}

Appearance appearanceOf(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness()
               ? Appearance::kDark
               : Appearance::kLight;
}

} // namespace xbr::host
