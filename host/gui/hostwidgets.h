#pragma once

#include "framework/abi/parameter.h"
#include "framework/abi/view.h"
#include "host/gui/picture/image.h" // pixelsOf
#include "host/gui/skin/palette.h"

#include <QStringList>

#include <functional>

class QLineEdit;
class QWidget;

/// What a front end with windows uses of this library. Needs a QApplication; main thread. Modules never use
/// it.
namespace xbr::host {

/// Builds the widget that shows a view: the form of a skin, styled by the skin, in the user's language and
/// bound to the view's controller.
///
/// The view must have been made by an ITheme of this library; null for any other, and when the form cannot be
/// built (a debug warning says why). A skin is loaded once more with a theme of the front end's own: the one
/// that a gadget's description names "brindlex" is at "resource://brindlex/skin".
///
/// The widget belongs to `parent`, or to the caller when that is null. It keeps the view, and with it the
/// controller: delete it (not with deleteLater) before the module of the controller is unloaded. It may be
/// deleted at any time but while Qt handles an event of one of its fields or lists; while a command of its
/// buttons runs, it may. The controller's children, parameters and list models may go before it does.
///
/// The widget's `windowTitle` is the form's, its `minimumSizeHint` what the form needs in the user's language
/// and font. Light or dark follows the palette that the widget inherits, at any time.
[[gnu::visibility("default")]] QWidget* createViewWidget(IView& view, QWidget* parent);

/// What brings a widget made by `createViewWidget` to the user's sight when its module asks for that (IShow):
/// opening a dock, say. Without one its window is raised.
[[gnu::visibility("default")]] void setShowAction(QWidget& viewWidget, std::function<void()> show);

/// Hears of each command that the user performs in a view of this library: `comes` before, whose false answer
/// prevents it, and `performed` once it has come back, as modules do not say that a command came to nothing.
/// Empty functions end it.
[[gnu::visibility("default")]] void setCommandListener(std::function<bool(IParameter& command)> comes,
                                                       std::function<void(IParameter& command)> performed);

/// Hears of a text that the user typed into a field of choices, and that names none of them. An empty
/// function ends it.
[[gnu::visibility("default")]] void
setEntryListener(std::function<void(IParameter& parameter, const QString& text)> listener);

/// Offers names while one is typed into a field: the best match first.
[[gnu::visibility("default")]] void offerNames(QLineEdit& field, const QStringList& names);

/// Says why the control of a parameter can do nothing, in its tooltip and in the label that the form keeps
/// for it (`xbrReasonFor`), which calls `show` when it is followed; an empty reason takes it away. Parameters
/// go by the last part of their paths.
[[gnu::visibility("default")]] void setReason(QWidget& viewWidget, const QString& parameter,
                                              const QString& reason, const std::function<void()>& show);

/// The control of a parameter, by the last part of its path; null when there is none.
[[gnu::visibility("default")]] QWidget* controlOf(const QWidget& viewWidget, const QString& parameter);

} // namespace xbr::host
