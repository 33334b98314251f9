#include "framework/abi/listmodel.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/base/listener.h"
#include "host/gui/bind/bindings.h"

#include <QCoreApplication>
#include <QLabel>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr qsizetype kMostValues = 4; ///< that a tooltip lists

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::Selection)
};

/// What an editor beside a list works on: the selected rows, and the one with the focus.
class EditedRows {
public:
    explicit EditedRows(Ref<IListViewModel> list) : m_list(std::move(list)) {}

    std::vector<std::int32_t> rows() const {
        std::vector<std::int32_t> found;
        for (std::int32_t row = 0; row < m_list->countRows(); ++row) {
            if (m_list->isSelected(row) || row == m_list->focus()) {
                found.push_back(row);
            }
        }
        return found;
    }

    QString property(std::int32_t row, const std::string& name) const {
        Ref<IObject> item;
        m_list->getItem(row, item.out());
        const auto properties = query<IPropertySource>(item.get());
        Value value{};
        const bool isThere = properties && properties->getProperty(toText(name), &value) == kOk;
        if (isThere && value.kind == ValueKind::kInteger) {
            return QString::number(integerOf(value));
        }
        return isThere ? QString::fromStdString(std::string(textOf(value))) : QString();
    }

    /// The first row that may not be changed now; -1 for none.
    std::int32_t locked() const {
        const auto edited = rows();
        const auto found = std::find_if(edited.begin(), edited.end(),
                                        [this](std::int32_t row) { return !m_list->isEditable(row); });
        return found == edited.end() ? -1 : *found;
    }

    IListViewModel& list() const { return *m_list; }

private:
    Ref<IListViewModel> m_list;
};

/// Calls `show` now, and with a later turn of the event loop whenever the list says something.
class SelectionBinding final : public QObject {
public:
    SelectionBinding(QWidget& widget, Ref<IListViewModel> list,
                     std::function<void(const EditedRows& edited)> show)
        : QObject(&widget),
          m_edited(std::move(list)),
          m_show(std::move(show)),
          m_listener([this](ISubject*, const IMessage&) { m_later.start(); }) {
        m_later.setSingleShot(true);
        m_later.setInterval(0);
        m_later.callOnTimeout([this] { m_show(m_edited); });
        m_listener.listen(query<ISubject>(&m_edited.list()));
        m_show(m_edited);
    }

private:
    EditedRows m_edited;
    std::function<void(const EditedRows&)> m_show;
    QTimer m_later;
    Listener m_listener;
};

bool bindSelection(QWidget& widget, IController& scope, const std::string& path,
                   std::function<void(const EditedRows&)> show) {
    auto list = findObject<IListViewModel>(scope, path);
    if (!list) {
        return false;
    }
    new SelectionBinding(widget, std::move(list), std::move(show));
    return true;
}

QString headerOf(const EditedRows& edited) {
    if (const std::int32_t row = edited.locked(); row >= 0) {
        return Texts::tr("“%1” is on its way and cannot be changed now.").arg(edited.property(row, "title"));
    }
    const auto count = static_cast<int>(edited.rows().size());
    return count > 1 ? Texts::tr("%n song(s) selected: an edit changes all of them.", nullptr, count)
                     : QString();
}

/// The different values of a property among the edited rows.
QStringList valuesOf(const EditedRows& edited, const std::string& property) {
    QStringList values;
    for (const std::int32_t row : edited.rows()) {
        const QString value = edited.property(row, property);
        if (!values.contains(value)) {
            values.append(value);
        }
    }
    return values;
}

void showDifference(QLabel& label, const EditedRows& edited, const std::string& property) {
    const QStringList values = valuesOf(edited, property);
    const bool isForSeveral = edited.rows().size() > 1;
    const auto count = static_cast<int>(values.size());
    const QString text = count > 1 ? Texts::tr("≠ %n value(s)", nullptr, count) : Texts::tr("same");
    label.setText(isForSeveral ? text : QString());
    const QString listed = values.mid(0, kMostValues).join(", ") + (count > kMostValues ? ", …" : "");
    const QString description = isForSeveral && count > 1
                                    ? Texts::tr("%n different value(s): %1", nullptr, count).arg(listed)
                                    : QString();
    label.setToolTip(description);
    label.setAccessibleName(description.isEmpty() ? label.text() : description);
}

} // namespace

bool bindLock(QWidget& widget, IController& scope, const std::string& path) {
    return bindSelection(widget, scope, path,
                         [&widget](const EditedRows& edited) { widget.setEnabled(edited.locked() < 0); });
}

bool bindEditorHeader(QWidget& widget, IController& scope, const std::string& path) {
    auto* label = qobject_cast<QLabel*>(&widget);
    return label && bindSelection(widget, scope, path, [label](const EditedRows& edited) {
               label->setText(headerOf(edited));
               label->setAccessibleName(label->text());
           });
}

bool bindDifference(QWidget& widget, IController& scope, const std::string& path) {
    auto* label = qobject_cast<QLabel*>(&widget);
    const auto colon = path.find(':');
    if (!label || colon == std::string::npos) {
        return false;
    }
    return bindSelection(widget, scope, path.substr(0, colon),
                         [label, property = path.substr(colon + 1)](const EditedRows& edited) {
                             showDifference(*label, edited, property);
                         });
}

} // namespace xbr::host
