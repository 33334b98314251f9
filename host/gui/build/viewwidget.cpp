#include "host/gui/build/viewwidget.h"

#include "host/gui/build/formbuilder.h"
#include "host/gui/skin/stylesheet.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace xbr::host {

ViewWidget::ViewWidget(FormView& view, QWidget* parent)
    : QWidget(parent),
      m_view(Ref<FormView>::share(&view)) {}

ViewWidget::~ViewWidget() {
    m_view->setShowAction({});
    // While the components and the controller are still there; QWidget would do it after them.
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

ViewWidget* ViewWidget::create(IView& view, QWidget* parent) {
    FormView* const form = FormView::from(view);
    auto widget = std::unique_ptr<ViewWidget>(form ? new ViewWidget(*form, parent) : nullptr);
    return widget && widget->build() ? widget.release() : nullptr;
}

bool ViewWidget::build() {
    applyStyle(); // before there is anything that would be styled twice
    FormBuilder builder(*m_view->skin(), &ViewWidget::create);
    const Text name = m_view->formName();
    QWidget* form = builder.build(std::string(name.data, name.length), *m_view->controller(), this);
    m_components = builder.takeComponents();
    if (!form) {
        return false;
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
    setWindowTitle(form->windowTitle());
    m_view->setShowAction([this] { showUp(); });
    return true;
}

QSize ViewWidget::minimumSizeHint() const {
    QSize size = QWidget::minimumSizeHint();
    if (layout() && layout()->hasHeightForWidth()) {
        size.setHeight(std::max(size.height(), layout()->totalMinimumHeightForWidth(size.width())));
    }
    return size;
}

void ViewWidget::applyStyle() {
    m_isStyling = true;
    m_styledPalette = palette().cacheKey();
    setStyleSheet(styleSheetFor(*m_view->skin(), palette()));
    m_isStyling = false;
}

void ViewWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_isStyling && palette().cacheKey() != m_styledPalette) {
        applyStyle();
    }
}

void ViewWidget::showUp() {
    if (m_showAction) {
        const auto action = m_showAction;
        action();
        return;
    }
    window()->show();
    window()->raise();
    window()->activateWindow();
}

} // namespace xbr::host
