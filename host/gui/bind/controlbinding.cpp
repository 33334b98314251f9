#include "host/gui/bind/controlbinding.h"

#include "framework/abi/listmodel.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/translation.h"
#include "host/gui/bind/bindings.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace xbr::host {

namespace {

class CommandBinding final : public ParameterBinding {
public:
    CommandBinding(QAbstractButton& button, std::unique_ptr<ValueSource> source)
        : ParameterBinding(button, std::move(source)) {
        connect(&button, &QAbstractButton::clicked, this, [this] { set(integerValue(1)); });
        start();
    }

private:
    void show() override {}
};

class ToggleBinding final : public ParameterBinding {
public:
    ToggleBinding(QAbstractButton& button, std::unique_ptr<ValueSource> source)
        : ParameterBinding(button, std::move(source)),
          m_button(&button),
          m_isInverted(button.property("xbrInverted").toBool()) {
        connect(&button, &QAbstractButton::clicked, this,
                [this](bool checked) { set(integerValue(checked != m_isInverted ? 1 : 0)); });
        start();
    }

private:
    void show() override { m_button->setChecked((source().integer() != 0) != m_isInverted); }

    QAbstractButton* m_button;
    bool m_isInverted;
};

class LineEditBinding final : public ParameterBinding {
public:
    LineEditBinding(QLineEdit& edit, std::unique_ptr<ValueSource> source)
        : ParameterBinding(edit, std::move(source)),
          m_edit(&edit) {
        connect(&edit, &QLineEdit::textEdited, this,
                [this](const QString& text) { set(textValue(text.toStdString())); });
        start();
    }

private:
    void show() override {
        const QString text = source().text();
        if (m_edit->text() != text) {
            // Someone may be typing here while the module corrects what is typed.
            const int cursor = m_edit->hasFocus() || m_edit->isModified() ? m_edit->cursorPosition() : 0;
            m_edit->setText(text);
            m_edit->setCursorPosition(cursor);
        }
    }

    QLineEdit* m_edit;
};

class SpinBoxBinding final : public ParameterBinding {
public:
    SpinBoxBinding(QSpinBox& box, std::unique_ptr<ValueSource> source)
        : ParameterBinding(box, std::move(source)),
          m_box(&box) {
        box.setFocusPolicy(Qt::StrongFocus);
        box.installEventFilter(this);
        if (auto* field = box.findChild<QLineEdit*>()) {
            nameField(box, *field);
        }
        connect(&box, &QSpinBox::valueChanged, this, [this](int value) { set(integerValue(value)); });
        start();
    }

private:
    static int toInt(std::int64_t value) {
        return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                         std::numeric_limits<int>::max()));
    }

    void show() override {
        const QSignalBlocker blocker(m_box);
        m_box->setRange(toInt(parameter().minimum()), toInt(parameter().maximum()));
        if (m_box->value() != source().integer()) {
            m_box->setValue(toInt(source().integer()));
        }
    }

    QSpinBox* m_box;
};

bool bindButton(QAbstractButton& button, std::unique_ptr<ValueSource> source) {
    if (button.isCheckable()) {
        new ToggleBinding(button, std::move(source));
    } else {
        new CommandBinding(button, std::move(source));
    }
    return true;
}

CommandListener& commandListener() {
    static CommandListener listener;
    return listener;
}

EntryListener& entryListener() {
    static EntryListener listener;
    return listener;
}

} // namespace

void hearEntries(EntryListener listener) {
    entryListener() = std::move(listener);
}

void refuseEntry(IParameter& parameter, const QString& text) {
    if (const auto hears = entryListener()) {
        hears(parameter, text);
    }
}

void hearCommands(CommandListener listener) {
    commandListener() = std::move(listener);
}

ParameterBinding::ParameterBinding(QWidget& control, std::unique_ptr<ValueSource> source)
    : QObject(&control),
      m_control(&control),
      m_source(std::move(source)) {}

void ParameterBinding::start() {
    m_source->observe([this] { refresh(); });
    refresh();
}

void ParameterBinding::set(const Value& value) {
    // The module may do anything now, closing the panel included.
    const QPointer<ParameterBinding> self(this);
    const auto kept = Ref<IParameter>::share(&parameter());
    const auto hears = kept->kind() == ParameterKind::kCommand ? commandListener() : CommandListener();
    if (hears.comes && !hears.comes(*kept)) {
        return;
    }
    kept->setValue(value);
    if (self) {
        refresh();
    }
    if (hears.performed) {
        hears.performed(*kept);
    }
}

void ParameterBinding::refresh() {
    m_control->setEnabled(parameter().isEnabled());
    show();
}

void ParameterBinding::nameField(QWidget& control, QWidget& field) {
    // Asked the way a screen reader asks: the name may be that of a label beside the control.
    if (QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&control)) {
        field.setAccessibleName(accessible->text(QAccessible::Name));
    }
}

bool ParameterBinding::eventFilter(QObject* watched, QEvent* event) {
    // The wheel scrolls what lies below the pointer; a value that happens to come by is not to change.
    if (event->type() == QEvent::Wheel && !m_control->hasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool bindParameter(QWidget& widget, std::unique_ptr<ValueSource> source) {
    if (!source->parameter()) {
        return false;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        return bindButton(*button, std::move(source));
    }
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        new LineEditBinding(*edit, std::move(source));
        return true;
    }
    if (auto* box = qobject_cast<QSpinBox*>(&widget)) {
        new SpinBoxBinding(*box, std::move(source));
        return true;
    }
    return bindChoice(widget, std::move(source));
}

bool bindCommand(QWidget& widget, IController& scope, const std::string& number,
                 ITranslationTable& translations) {
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    auto commands = query<ICommandList>(&scope);
    bool isNumber = false;
    const int index = QString::fromStdString(number).toInt(&isNumber);
    if (!button || !commands || !isNumber || index < 0 || index >= commands->count()) {
        return false;
    }
    // A "&" of a name is a letter of it.
    auto name = QString::fromStdString(translate(commands->nameAt(index), &translations));
    button->setText(name.replace(QLatin1Char('&'), QLatin1String("&&")));
    button->setEnabled(commands->isEnabled(index));
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [commands = std::move(commands), index] { commands->perform(index); });
    return true;
}

} // namespace xbr::host
