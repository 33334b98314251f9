#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/base/weburl.h"
#include "host/gui/bind/bindings.h"
#include "host/gui/bind/elidedtext.h"
#include "host/gui/bind/valuesource.h"
#include "host/gui/list/listview.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QStackedWidget>
#include <QStyle>
#include <QUrl>

namespace xbr::host {

namespace {

/// The first widget of a page that the Tab key would stop at; null when there is none.
QWidget* firstStop(QWidget& page) {
    QWidget* widget = page.nextInFocusChain();
    for (; widget && widget != &page; widget = widget->nextInFocusChain()) {
        const bool isStop = page.isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) != 0;
        if (isStop && widget->isEnabled() && widget->isVisibleTo(&page)) {
            return widget;
        }
    }
    return nullptr;
}

void showPage(QStackedWidget& pages, std::int64_t number) {
    const int index = number >= 0 && number < pages.count() ? static_cast<int>(number) : 0;
    if (pages.currentIndex() == index) {
        return;
    }
    const QWidget* focus = pages.focusWidget();
    const bool hadFocus = focus && focus->hasFocus();
    pages.setCurrentIndex(index);
    QWidget& page = *pages.currentWidget();
    if (QWidget* stop = hadFocus ? firstStop(page) : nullptr) {
        stop->setFocus(Qt::OtherFocusReason);
    }
    // A page comes without the user's doing: who does not see it is told.
    QAccessibleEvent alert(&page, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

/// Cuts a text off after so many characters, between words where there are any; 0 for any length.
QString shortened(const QString& text, int limit) {
    if (limit <= 0 || text.size() <= limit) {
        return text;
    }
    const QString start = text.left(limit);
    const auto space = start.lastIndexOf(QLatin1Char(' '));
    return start.left(space > limit / 2 ? space : limit).trimmed() + QChar(0x2026);
}

/// Gives a widget the style of its form, or its usual one, in looks and in words.
void setStyled(QWidget& widget, bool isStyled) {
    const QVariant style = isStyled ? widget.property("xbrStyleName") : QVariant(QString());
    if (widget.property("xbrStyle") == style) {
        return;
    }
    widget.setProperty("xbrStyle", style);
    widget.setAccessibleDescription(isStyled ? widget.property("xbrStyleText").toString() : QString());
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

} // namespace

ValueBinding::ValueBinding(QWidget& widget, std::unique_ptr<ValueSource> source,
                           std::function<void(const ValueSource&)> show)
    : QObject(&widget),
      m_source(std::move(source)),
      m_show(std::move(show)) {
    m_source->observe([this] { m_show(*m_source); });
    m_show(*m_source);
}

bool bindText(QWidget& widget, std::unique_ptr<ValueSource> source) {
    if (!ElidedText::fits(widget)) {
        return false;
    }
    auto* text = new ElidedText(widget);
    const int limit = widget.property("xbrMaximumLength").toInt();
    new ValueBinding(widget, std::move(source),
                     [text, limit](const ValueSource& value) { text->set(shortened(value.text(), limit)); });
    return true;
}

bool bindName(QWidget& widget, std::unique_ptr<ValueSource> source) {
    new ValueBinding(widget, std::move(source),
                     [&widget](const ValueSource& value) { widget.setAccessibleName(value.text()); });
    return true;
}

bool bindLink(QWidget& widget, std::unique_ptr<ValueSource> source) {
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    if (!button) {
        return false;
    }
    new ValueBinding(widget, std::move(source), [button](const ValueSource& value) {
        const QUrl url(value.text(), QUrl::StrictMode);
        button->setProperty("xbrUrl", url);
        button->setEnabled(isWebAddress(url));
    });
    QObject::connect(button, &QAbstractButton::clicked, button, [button] {
        const std::string url = button->property("xbrUrl").toUrl().toEncoded().toStdString();
        XBRGetSystemShell()->openUrl(toText(url));
    });
    return true;
}

bool bindPages(QWidget& widget, std::unique_ptr<ValueSource> source) {
    auto* pages = qobject_cast<QStackedWidget*>(&widget);
    if (!pages || pages->count() == 0) {
        return false;
    }
    new ValueBinding(widget, std::move(source),
                     [pages](const ValueSource& value) { showPage(*pages, value.integer()); });
    return true;
}

bool bindVisibility(QWidget& widget, std::unique_ptr<ValueSource> source, const std::string& expression) {
    new ValueBinding(widget, std::move(source),
                     [&widget, condition = Condition::parse(expression)](const ValueSource& value) {
                         widget.setVisible(condition.holds(value.value().value()));
                     });
    return true;
}

bool bindStyle(QWidget& widget, std::unique_ptr<ValueSource> source, const std::string& expression) {
    new ValueBinding(widget, std::move(source),
                     [&widget, condition = Condition::parse(expression)](const ValueSource& value) {
                         setStyled(widget, condition.holds(value.value().value()));
                     });
    return true;
}

bool bindList(QWidget& widget, IController& scope, const std::string& path) {
    auto* list = qobject_cast<ListView*>(&widget);
    auto model = findObject<IListViewModel>(scope, path);
    if (!list || !model) {
        return false;
    }
    list->setPlaceholder(widget.property("xbrPlaceholder").toString());
    list->setRemoveText(widget.property("xbrRemoveText").toString());
    list->showModel(*new ListModelAdaptor(std::move(model), list));
    return true;
}

} // namespace xbr::host
