#pragma once

#include "host/gui/bind/valuesource.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QCompleter;
class QLineEdit;
class QWidget;

namespace xbr::host {

/// Hears of each command of the user's (empty: nobody does): before it is performed, which a false answer
/// prevents, and once it has come back.
struct CommandListener {
    std::function<bool(IParameter& command)> comes;
    std::function<void(IParameter& command)> performed;
};
void hearCommands(CommandListener listener);

/// Hears of a text that the user typed into a field of choices, and that names none of them.
using EntryListener = std::function<void(IParameter& parameter, const QString& text)>;
void hearEntries(EntryListener listener);
void refuseEntry(IParameter& parameter, const QString& text);

/// Offers names while one is typed: the best match first.
QCompleter* completeNames(QLineEdit& field, const std::function<QStringList()>& names);

/// A control for a parameter. What the user sets and what the parameter reports are two ways: `show` is quiet
/// when the control shows the value already, and never sets the parameter.
class ParameterBinding : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Belongs to `control`. Derived classes end their construction with `start`.
    ParameterBinding(QWidget& control, std::unique_ptr<ValueSource> source);

    void start();

    /// Sets the parameter as the user wants it, and shows what became of that. This object may be gone
    /// afterwards.
    void set(const Value& value);

    virtual void show() = 0;

    /// Gives the field within a compound control the control's name: screen readers stop there.
    static void nameField(QWidget& control, QWidget& field);

    const ValueSource& source() const { return *m_source; }
    IParameter& parameter() const { return *m_source->parameter(); }

private:
    void refresh();

    QWidget* m_control;
    std::unique_ptr<ValueSource> m_source;
};

} // namespace xbr::host
