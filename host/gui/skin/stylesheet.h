#pragma once

#include "host/gui/skin/skin.h"

#include <QString>

class QPalette;

namespace xbr::host {

/// The style sheet of a skin for a palette: the common part, then the one for its appearance. Pictures that
/// it names (`url(images/arrow.svg)`) are written below the host's temporary folder in the palette's text
/// colour, as Qt's style sheets read them from files only.
QString styleSheetFor(const Skin& skin, const QPalette& palette);

} // namespace xbr::host
