#include "host/app/window/panels/docktitle.h"

#include "host/app/window/look/icon.h"
#include "host/app/window/look/tints.h"

#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace xbr::host {

namespace {

QToolButton* makeButton(QWidget* parent, const QString& icon, const QString& text) {
    auto* button = new QToolButton(parent);
    button->setIcon(symbolIcon(icon, IconColor::kQuiet));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    return button;
}

} // namespace

DockTitle::DockTitle(QDockWidget& dock) : QWidget(&dock) {
    setObjectName("dockTitle");
    setAttribute(Qt::WA_StyledBackground);
    auto* title = new QLabel(dock.windowTitle(), this);
    title->setFont(scaledFont(1.0, QFont::DemiBold));
    title->setTextFormat(Qt::PlainText);
    auto* floating = makeButton(this, "float", tr("Float or dock"));
    auto* closing = makeButton(this, "close", tr("Hide"));
    connect(floating, &QToolButton::clicked, &dock, [&dock] { dock.setFloating(!dock.isFloating()); });
    connect(closing, &QToolButton::clicked, &dock, &QDockWidget::close);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 8, 8);
    layout->setSpacing(2);
    layout->addWidget(title, 1);
    layout->addWidget(floating);
    layout->addWidget(closing);
}

} // namespace xbr::host
