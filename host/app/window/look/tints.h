#pragma once

#include "host/app/publishing/verdict/notice.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

namespace xbr::host {

/// The colour of a kind of notice: readable on the palette's window colour.
QColor noticeColor(NoticeKind kind, const QPalette& palette);

/// The window's style sheet for a palette.
QString windowStyle(const QPalette& palette);

/// The program's font in another size and weight.
QFont scaledFont(double factor, QFont::Weight weight);

} // namespace xbr::host
