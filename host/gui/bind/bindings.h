#pragma once

#include "framework/abi/locale.h"
#include "host/gui/bind/valuesource.h"
#include "host/gui/skin/skin.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>

class QWidget;

/// The ways in which a widget of a form can be bound (docs/skin.md). Each function answers false when the
/// widget is not of a kind that can be bound so, or the path leads to something else than it needs. What it
/// makes belongs to the widget.
namespace xbr::host {

/// Shows a value in a widget for as long as that lives.
class ValueBinding final : public QObject {
public:
    /// `show` is called now and whenever the value may have changed; it is quiet when the widget shows the
    /// value already.
    ValueBinding(QWidget& widget, std::unique_ptr<ValueSource> source,
                 std::function<void(const ValueSource&)> show);

private:
    std::unique_ptr<ValueSource> m_source;
    std::function<void(const ValueSource&)> m_show;
};

/// A control for a parameter: buttons for commands and toggles, line edits, spin boxes, combo boxes.
bool bindParameter(QWidget& widget, std::unique_ptr<ValueSource> source);

/// A combo box for a list parameter; an editable one finds entries by what is typed.
bool bindChoice(QWidget& widget, std::unique_ptr<ValueSource> source);

/// The value as text of a label or button, cut off with dots where the width is not the widget's to choose,
/// and after `xbrMaximumLength` characters.
bool bindText(QWidget& widget, std::unique_ptr<ValueSource> source);

/// The value as the name for screen readers.
bool bindName(QWidget& widget, std::unique_ptr<ValueSource> source);

/// A button that opens an address in the browser.
bool bindLink(QWidget& widget, std::unique_ptr<ValueSource> source);

/// A stack of pages that shows the page of that number.
bool bindPages(QWidget& widget, std::unique_ptr<ValueSource> source);

/// Both take the condition that `expression` states about the value.
bool bindVisibility(QWidget& widget, std::unique_ptr<ValueSource> source, const std::string& expression);
bool bindStyle(QWidget& widget, std::unique_ptr<ValueSource> source, const std::string& expression);

/// A list for a list model.
bool bindList(QWidget& widget, IController& scope, const std::string& path);

/// Three ways in which an editor beside a list model says what it works on: fields that are disabled while an
/// edited row may not be changed; a line that tells so, or that several rows are edited; and a mark for a
/// property ("path:property") in which these differ.
bool bindLock(QWidget& widget, IController& scope, const std::string& path);
bool bindEditorHeader(QWidget& widget, IController& scope, const std::string& path);
bool bindDifference(QWidget& widget, IController& scope, const std::string& path);

/// The picture of an image source, instead of a label's text.
bool bindImage(QWidget& widget, IController& scope, const std::string& path);

/// A button for a command of the scope's ICommandList, by its number there, named in the user's language.
bool bindCommand(QWidget& widget, IController& scope, const std::string& number,
                 ITranslationTable& translations);

/// A picture of the skin, on a button or instead of a label's text.
bool bindIcon(QWidget& widget, const Skin& skin, const std::string& file);

} // namespace xbr::host
