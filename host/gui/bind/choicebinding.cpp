#include "framework/support/objects/text.h"
#include "host/base/nearness.h"
#include "host/gui/bind/bindings.h"
#include "host/gui/bind/controlbinding.h"

#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

namespace xbr::host {

namespace {

/// A combo box over the choices of a list parameter.
class ChoiceBinding final : public ParameterBinding {
public:
    ChoiceBinding(QComboBox& box, std::unique_ptr<ValueSource> source)
        : ParameterBinding(box, std::move(source)),
          m_box(&box) {
        box.setFocusPolicy(Qt::StrongFocus);
        box.installEventFilter(this);
        connect(&box, &QComboBox::activated, this, [this](int index) { set(integerValue(index)); });
        if (box.isEditable()) {
            findByTyping();
        }
        start();
    }

private:
    void findByTyping() {
        m_box->setInsertPolicy(QComboBox::NoInsert);
        m_box->setCompleter(nullptr);
        QLineEdit* edit = m_box->lineEdit();
        QCompleter* completer = completeNames(*edit, [this] { return m_choices; });
        connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
                [this](const QString& text) { takeEntry(text); });
        edit->installEventFilter(this);
        m_edit = edit;
        edit->setPlaceholderText(m_box->placeholderText());
        nameField(*m_box, *edit);
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) { takeEntry(text); });
        connect(edit, &QLineEdit::returnPressed, this, [this] { take(Match::kFirst); });
        connect(edit, &QLineEdit::editingFinished, this, [this] { take(Match::kOnly); });
    }

    /// Tab takes what is typed before it looks where it leads: that may be what the entry enables.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == m_edit && event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
            take(Match::kOnly);
        }
        return watched == m_edit ? false : ParameterBinding::eventFilter(watched, event);
    }

    /// A whole entry counts as soon as it is typed: who leaves by a key or a button that takes no focus has
    /// confirmed nothing. What stands in the field stays as it is typed.
    void takeEntry(const QString& text) {
        const int index = text.trimmed().isEmpty() ? current() : entryNamed(text.trimmed());
        if (index < 0 || index == current()) {
            return;
        }
        QLineEdit* edit = m_box->lineEdit();
        const int cursor = edit->cursorPosition();
        set(integerValue(index));
        edit->setText(text);
        edit->setCursorPosition(cursor);
        edit->setModified(true);
    }

    /// The entry of that name without case; -1 for none.
    int entryNamed(const QString& text) const {
        for (int i = 0; i < m_box->count(); ++i) {
            if (shown(m_box->itemText(i)).compare(text, Qt::CaseInsensitive) == 0) {
                return i;
            }
        }
        return -1;
    }

    /// Which of several entries that hold the typed text is meant.
    enum class Match { kFirst, kOnly };

    void take(Match match) {
        m_box->lineEdit()->setModified(false); // what was typed has been read
        const QString text = m_box->currentText().trimmed();
        const int index = text == shown(m_box->itemText(current())) ? current() : find(text, match);
        if (index != current()) {
            set(integerValue(index));
            return;
        }
        show();
        if (!text.isEmpty() && text.compare(shown(m_box->itemText(index)), Qt::CaseInsensitive) != 0) {
            refuseEntry(parameter(), text);
        }
    }

    /// The entry that the text names: itself without case, or else one that holds it; the present one when
    /// there is none. No text names the blank entry.
    int find(const QString& text, Match match) const {
        if (const int named = entryNamed(text); named >= 0) {
            return named;
        }
        int found = -1;
        int count = 0;
        for (int i = 0; i < m_box->count(); ++i) {
            if (!text.isEmpty() && shown(m_box->itemText(i)).contains(text, Qt::CaseInsensitive)) {
                found = count++ == 0 ? i : found;
            }
        }
        return count == 1 || (count > 0 && match == Match::kFirst) ? found : current();
    }

    /// What the editor shows of an entry: a blank one is nothing, so that typing does not begin behind it.
    static QString shown(const QString& entry) { return entry.trimmed(); }

    int current() const { return static_cast<int>(source().integer()); }

    void show() override {
        showChoices();
        if (m_box->currentIndex() != current()) {
            m_box->setCurrentIndex(current());
            showText();
        } else if (m_box->isEditable() && !m_box->lineEdit()->isModified()) {
            showText();
        }
    }

    void showText() {
        if (QLineEdit* edit = m_box->lineEdit()) {
            const QString text = shown(m_box->itemText(current()));
            if (edit->text() != text) {
                edit->setText(text);
            }
        }
    }

    void showChoices() {
        QStringList choices;
        for (std::int32_t i = 0; i < parameter().countChoices(); ++i) {
            choices.append(QString::fromStdString(toString(parameter().choiceAt(i))));
        }
        if (choices != m_choices) {
            m_choices = choices;
            m_box->clear();
            m_box->addItems(choices);
        }
    }

    QComboBox* m_box;
    QObject* m_edit = nullptr; ///< the editor; only compared, as it may outlive the box
    QStringList m_choices;
};

} // namespace

QCompleter* completeNames(QLineEdit& field, const std::function<QStringList()>& names) {
    auto* completer = new QCompleter(&field);
    auto* model = new QStringListModel(completer);
    completer->setModel(model);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    QObject::connect(&field, &QLineEdit::textEdited, model, [model, names](const QString& text) {
        std::vector<std::string> all;
        for (const QString& name : names()) {
            all.push_back(name.toStdString());
        }
        QStringList found;
        for (const std::string& name : namesLike(text.toStdString(), all)) {
            found.append(QString::fromStdString(name));
        }
        model->setStringList(text.trimmed().isEmpty() ? QStringList() : found);
    });
    field.setCompleter(completer);
    return completer;
}

bool bindChoice(QWidget& widget, std::unique_ptr<ValueSource> source) {
    auto* box = qobject_cast<QComboBox*>(&widget);
    if (!box || source->parameter()->kind() != ParameterKind::kList) {
        return false;
    }
    new ChoiceBinding(*box, std::move(source));
    return true;
}

} // namespace xbr::host
