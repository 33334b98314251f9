#pragma once

class QWidget;

namespace xbr::host {

/// Brings a window to the user's sight: shown, not minimised, on top and with the keyboard. Where the desktop
/// does not let programs do that, the window asks for attention instead.
void raise(QWidget& window);

} // namespace xbr::host
