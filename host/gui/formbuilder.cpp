#include "host/gui/formbuilder.h"

#include "framework/abi/system.h"
#include "framework/abi/view.h"
#include "framework/support/path.h"
#include "framework/support/text.h"
#include "host/gui/bindings.h"
#include "host/gui/componentclass.h"
#include "host/gui/condition.h"
#include "host/gui/formloader.h"
#include "host/gui/formtranslation.h"
#include "host/gui/hostwidgets.h"

#include <QBuffer>
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
}

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
    {"xbrParameter", bindParameter},
    {"xbrText", bindText},
    {"xbrLink", bindLink},
    {"xbrPageSwitch", bindPages},
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

FormBuilder::FormBuilder(const Skin& skin) : m_skin(skin) {
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
    scope = createComponentByName(className);
    if (!scope) {
        warn(className, "there is no such class of components");
        return false;
    }
    m_components.push_back(scope);
    return true;
}

void FormBuilder::bindWidget(QWidget& widget, IController& scope) {
    scaleFont(widget);
    bindValues(widget, scope);
    if (const auto path = propertyOf(widget, "xbrListModel"); !path.empty()) {
        check(bindList(widget, scope, path), widget, path);
    }
    if (const auto file = propertyOf(widget, "xbrIcon"); !file.empty()) {
        check(bindIcon(widget, m_skin, file), widget, file);
    }
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

void FormBuilder::embedForm(QWidget& widget, IController& scope) {
    const std::string form = propertyOf(widget, "xbrForm");
    if (form.empty()) {
        return;
    }
    if (std::find(m_forms.begin(), m_forms.end(), form) != m_forms.end()) {
        warn(form, "the form would hold itself");
    } else if (!m_skin.forms.contains(form)) {
        warn(form, "there is no such form");
    } else if (QWidget* content = build(form, scope, &widget)) {
        fill(widget, *content);
    }
}

void FormBuilder::embedView(QWidget& widget, IController& scope) {
    const std::string name = propertyOf(widget, "xbrView");
    if (name.empty()) {
        return;
    }
    Ref<IView> view;
    QWidget* content = scope.createView(toText(name), view.out()) == kOk && view
                           ? createViewWidget(*view, &widget)
                           : nullptr;
    if (content) {
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
