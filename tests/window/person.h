#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QMimeData>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace xbr::host::tests {

/// A part of a form or of the window by its name; fails the test and answers null when there is none to be
/// seen.
QWidget* find(QWidget& window, const char* name);

template <class T>
T* findAs(QWidget& window, const char* name) {
    return qobject_cast<T*>(find(window, name));
}

void click(QWidget& window, const char* name);

/// Replaces the text of a field by typing.
void type(QWidget& window, const char* name, const QString& text);

/// Drops files onto a widget, as a file manager does, or anything at a place. False when the widget does not
/// want it.
bool drop(QWidget& target, const std::vector<std::string>& files);
bool drop(QWidget& target, const QMimeData& data, QPoint place, Qt::DropAction action);

/// Selects rows with the mouse and the keyboard's modifiers.
void selectRows(QAbstractItemView& list, const std::vector<int>& rows);

/// What a cell shows.
std::string cell(const QAbstractItemView& list, int row, int column);

/// Performs an entry of the window's menus by its text (without mnemonics); false when it is disabled or
/// missing.
bool choose(QWidget& window, const QString& text);

/// Calls a function again and again, in whatever event loop runs, until it answers true or the handle dies.
[[nodiscard]] std::unique_ptr<QTimer> whenever(const std::function<bool()>& act);

/// The same while a modal dialog of that kind is open.
template <class Dialog>
[[nodiscard]] std::unique_ptr<QTimer> inDialog(const std::function<bool(Dialog&)>& act) {
    return whenever([act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        return dialog && act(*dialog);
    });
}

/// Presses a button of the question that comes up.
[[nodiscard]] std::unique_ptr<QTimer> answer(const QString& button);

/// Runs the event loop until the condition holds; false when that takes too long.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 20000);

} // namespace xbr::host::tests
