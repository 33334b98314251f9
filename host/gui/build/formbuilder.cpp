#include "host/gui/build/formbuilder.h"

#include "framework/abi/system.h"
#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/gui/bind/bindings.h"
#include "host/gui/bind/valuesource.h"
#include "host/gui/build/componentclass.h"
#include "host/gui/build/formloader.h"
#include "host/gui/build/rowlist.h"
#include "host/gui/build/taborder.h"
#include "host/gui/list/listview.h"

#include <QBuffer>
#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace xbr::host {

namespace {

/// A dynamic property of a form; empty when the widget does not have it.
std::string propertyOf(const QWidget& widget, const char* name) {
    return widget.property(name).toString().toStdString();
}

void fill(QWidget& widget, QWidget& content) {
    auto* layout = new QVBoxLayout(&widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&content);
    placeInTabOrder(widget, content);
}

/// Null when the controller makes no such view.
QWidget* viewOf(IController& scope, const std::string& name, const FormBuilder::ViewMaker& make,
                QWidget& parent) {
    Ref<IView> view;
    const bool isMade = scope.createView(toText(name), view.out()) == kOk && view;
    return isMade ? make(*view, &parent) : nullptr;
}

/// Puts a view into a widget when that is shown for the first time.
class LaterView final : public QObject {
public:
    LaterView(QWidget& widget, std::function<QWidget*()> makeView)
        : QObject(&widget),
          m_widget(&widget),
          m_makeView(std::move(makeView)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            m_widget->removeEventFilter(this);
            if (QWidget* content = m_makeView()) {
                fill(*m_widget, *content);
                content->show();
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_widget;
    std::function<QWidget*()> m_makeView;
};

/// Fonts of a form are said in relation to the user's.
void scaleFont(QWidget& widget) {
    bool isNumber = false;
    const double scale = widget.property("xbrFontScale").toDouble(&isNumber);
    if (isNumber && scale > 0.0) {
        QFont font = widget.font();
        font.setPointSizeF(font.pointSizeF() * scale);
        widget.setFont(font);
    }
}

/// Ways of binding that need a value, by their property.
struct ValueKindOfBinding {
    const char* property;
    bool (*bind)(QWidget& widget, std::unique_ptr<ValueSource> source);
};
constexpr ValueKindOfBinding kValues[] = {
    {"xbrParameter", bindParameter}, {"xbrText", bindText},        {"xbrAccessibleName", bindName},
    {"xbrLink", bindLink},           {"xbrPageSwitch", bindPages},
};

/// Ways that need something of the scope other than a value.
struct ScopeBinding {
    const char* property;
    bool (*bind)(QWidget& widget, IController& scope, const std::string& path);
};
constexpr ScopeBinding kObjects[] = {
    {"xbrListModel", bindList},        {"xbrImage", bindImage},
    {"xbrLockedBy", bindLock},         {"xbrEditorHeader", bindEditorHeader},
    {"xbrDifference", bindDifference},
};

/// Ways that put a condition on it.
struct Conditional {
    const char* property;
    bool (*bind)(QWidget& widget, std::unique_ptr<ValueSource> source, const std::string& expression);
};
constexpr Conditional kConditions[] = {
    {"xbrVisibleIf", bindVisibility},
    {"xbrStyleIf", bindStyle},
};

} // namespace

FormBuilder::FormBuilder(const Skin& skin, ViewMaker makeView, std::vector<std::string> forms)
    : m_skin(skin),
      m_makeView(std::move(makeView)),
      m_forms(std::move(forms)) {
    XBRGetLocaleManager()->getTable(toText(skin.module), m_translations.out());
}

QWidget* FormBuilder::build(const std::string& form, IController& controller, QWidget* parent) {
    m_forms.push_back(form);
    QByteArray description = translateForm(m_skin.forms.at(form), *m_translations);
    QBuffer buffer(&description);
    FormLoader loader;
    QWidget* const widget = loader.load(&buffer, parent);
    if (widget) {
        bindTree(*widget, Ref<IController>::share(&controller));
    } else {
        warn(form, loader.errorString().toStdString());
    }
    m_forms.pop_back();
    return widget;
}

void FormBuilder::bindTree(QWidget& widget, Ref<IController> scope) {
    if (!enterScope(widget, scope)) {
        return; // one fault, not one for every widget in there
    }
    // Listed before anything is embedded: forms in there are bound by themselves.
    const auto children = widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    bindWidget(widget, *scope);
    if (auto* list = qobject_cast<ListView*>(&widget)) {
        list->setTranslations(m_translations);
    }
    for (QWidget* child : children) {
        bindTree(*child, scope);
    }
}

bool FormBuilder::enterScope(QWidget& widget, Ref<IController>& scope) {
    const std::string path = propertyOf(widget, "xbrScope");
    if (!path.empty()) {
        auto inner = findObject<IController>(*scope, path);
        if (!inner) {
            warn(path, "there is no such controller");
            return false;
        }
        scope = std::move(inner);
    }
    return createComponent(widget, scope);
}

bool FormBuilder::createComponent(QWidget& widget, Ref<IController>& scope) {
    const std::string className = propertyOf(widget, "xbrComponent");
    if (className.empty()) {
        return true;
    }
    scope = createComponentByName(className, m_skin.module);
    if (!scope) {
        widget.hide(); // it would show nothing but its empty frame
        warn(className, "there is no such class of components");
        return false;
    }
    m_components.push_back(scope);
    return true;
}

void FormBuilder::bindWidget(QWidget& widget, IController& scope) {
    scaleFont(widget);
    bindValues(widget, scope);
    for (const auto& [property, bind] : kObjects) {
        if (const auto path = propertyOf(widget, property); !path.empty()) {
            check(bind(widget, scope, path), widget, path);
        }
    }
    if (const auto number = propertyOf(widget, "xbrCommand"); !number.empty()) {
        check(bindCommand(widget, scope, number, *m_translations), widget, number);
    }
    if (const auto file = propertyOf(widget, "xbrIcon"); !file.empty()) {
        check(bindIcon(widget, m_skin, file), widget, file);
    }
    repeatForm(widget, scope);
    embedForm(widget, scope);
    embedView(widget, scope);
}

void FormBuilder::bindValues(QWidget& widget, IController& scope) {
    for (const auto& [property, bind] : kValues) {
        const std::string path = propertyOf(widget, property);
        if (auto source = path.empty() ? nullptr : find(scope, path)) {
            check(bind(widget, std::move(source)), widget, path);
        }
    }
    for (const auto& [property, bind] : kConditions) {
        const std::string expression = propertyOf(widget, property);
        const std::string path = Condition::parse(expression).path;
        if (auto source = path.empty() ? nullptr : find(scope, path)) {
            check(bind(widget, std::move(source), expression), widget, path);
        }
    }
}

bool FormBuilder::canEmbed(const std::string& form) {
    if (std::find(m_forms.begin(), m_forms.end(), form) != m_forms.end()) {
        warn(form, "the form would hold itself");
        return false;
    }
    if (!m_skin.forms.contains(form)) {
        warn(form, "there is no such form");
        return false;
    }
    return true;
}

void FormBuilder::repeatForm(QWidget& widget, IController& scope) {
    const std::string form = propertyOf(widget, "xbrRows");
    if (form.empty() || !canEmbed(form)) {
        return;
    }
    const bool isPossible = RowList::fits(widget);
    check(isPossible, widget, form);
    if (isPossible) {
        const auto builder = std::make_shared<FormBuilder>(m_skin, m_makeView, m_forms);
        const auto make = [builder, form](IController& child, QWidget* parent) {
            return builder->build(form, child, parent);
        };
        new RowList(static_cast<QScrollArea&>(widget), Ref<IController>::share(&scope),
                    propertyOf(widget, "xbrRowsOf"), {make, [builder] { builder->takeComponents(); }});
    }
}

void FormBuilder::embedForm(QWidget& widget, IController& scope) {
    const std::string form = propertyOf(widget, "xbrForm");
    if (form.empty() || !canEmbed(form)) {
        return;
    }
    if (QWidget* content = build(form, scope, &widget)) {
        fill(widget, *content);
    }
}

void FormBuilder::embedView(QWidget& widget, IController& scope) {
    const std::string name = propertyOf(widget, "xbrView");
    if (name.empty()) {
        return;
    }
    const bool isHidden =
        widget.testAttribute(Qt::WA_WState_ExplicitShowHide) && widget.testAttribute(Qt::WA_WState_Hidden);
    if (isHidden) {
        new LaterView(widget, [makeView = m_makeView, kept = Ref<IController>::share(&scope), name, &widget] {
            return viewOf(*kept, name, makeView, widget);
        });
    } else if (QWidget* content = viewOf(scope, name, m_makeView, widget)) {
        fill(widget, *content);
    } else {
        warn(name, "the controller makes no such view");
    }
}

std::unique_ptr<ValueSource> FormBuilder::find(IController& scope, const std::string& path) {
    auto source = ValueSource::find(scope, path);
    if (!source) {
        warn(path, "there is no such parameter or property");
    }
    return source;
}

void FormBuilder::check(bool isBound, const QWidget& widget, const std::string& path) {
    if (!isBound) {
        warn(path, std::string("it does not fit the ") + widget.metaObject()->className() + " '" +
                       widget.objectName().toStdString() + "'");
    }
}

void FormBuilder::warn(const std::string& path, std::string_view fault) {
    const std::string warning = "form " + m_forms.back() + ": '" + path + "': ";
    if (m_told.insert(warning).second) {
        XBRGetSystem()->writeDebugWarning(toText(warning + std::string(fault) + "\n"));
    }
}

} // namespace xbr::host
