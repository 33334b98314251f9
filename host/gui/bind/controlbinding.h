#pragma once

#include "host/gui/bind/valuesource.h"

#include <QObject>

#include <functional>
#include <memory>

class QWidget;

namespace xbr::host {

/// Hears of each command that the user performed, once it has come back (empty: nobody does).
using CommandListener = std::function<void(IParameter& command)>;
void hearCommands(CommandListener listener);

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
