#pragma once

class QWidget;

namespace xbr::host {

/// Lets the Tab key go through what is in `content` right after `anchor`. What is made later than the rest of
/// a form would come last otherwise. Answers the last stop; `anchor` when there is none in `content`.
QWidget& placeInTabOrder(QWidget& anchor, QWidget& content);

} // namespace xbr::host
