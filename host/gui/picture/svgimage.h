#pragma once

#include <QByteArray>
#include <QColor>
#include <QIcon>

#include <string>

namespace xbr::host {

/// An SVG picture of a skin, in one colour wherever it says "currentColor".
QByteArray colouredImage(const std::string& svg, const QColor& colour);

/// An icon that is drawn anew for each size, screen scale and state, in the text colours of `widget`, which
/// must live as long as the icon.
QIcon skinIcon(const std::string& svg, const QWidget& widget);

} // namespace xbr::host
