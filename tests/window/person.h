#pragma once

#include <QAbstractItemView>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace xbr::host::tests {

/// A part of a form or of the window by its name; fails the test and answers null when there is none to be
/// seen.
QWidget* find(QWidget& window, const char* name);

template <class T>
T* findAs(QWidget& window, const char* name) {
    T* found = qobject_cast<T*>(find(window, name));
    return found;
}

void click(QWidget& window, const char* name);

/// Replaces the text of a field by typing.
void type(QWidget& window, const char* name, const QString& text);

/// Drops files onto a widget, as a file manager does. False when the widget does not want them.
bool drop(QWidget& target, const std::vector<std::string>& files);

/// Selects rows with the mouse and the keyboard's modifiers.
void selectRows(QAbstractItemView& list, const std::vector<int>& rows);

/// What a cell shows.
std::string cell(const QAbstractItemView& list, int row, int column);

/// Performs an entry of the window's menus by its text (without mnemonics); false when it is disabled or
/// missing.
bool choose(QWidget& window, const QString& text);

/// Presses a button of the question that comes up, whatever event loop runs then.
[[nodiscard]] std::unique_ptr<QTimer> answer(const QString& button);

} // namespace xbr::host::tests
