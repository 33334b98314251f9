#include "host/gui/build/rowlist.h"

#include "framework/support/objects/message.h"
#include "framework/support/parts/path.h"
#include "host/gui/build/taborder.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace xbr::host {

namespace {

constexpr int kPortion = 8;

QVBoxLayout* rowsOf(const QScrollArea& area) {
    return area.widget() ? qobject_cast<QVBoxLayout*>(area.widget()->layout()) : nullptr;
}

} // namespace

RowList::RowList(QScrollArea& area, Ref<IController> controller, std::string children, Rows rows)
    : QObject(&area),
      m_area(&area),
      m_controller(std::move(controller)),
      m_children(std::move(children)),
      m_rows(std::move(rows)),
      m_lastStop(&area),
      m_listener([this](ISubject*, const IMessage& message) {
          if (isNamed(message, "changed")) {
              m_rebuilding.start(0); // once for several, and not within a call of the module
          }
      }) {
    m_filling.setSingleShot(true);
    m_rebuilding.setSingleShot(true);
    connect(&m_filling, &QTimer::timeout, this, [this] { fill(); });
    connect(&m_rebuilding, &QTimer::timeout, this, [this] { rebuild(); });
    connect(area.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { fillSoon(); });
    area.installEventFilter(this);
    rowsOf(area)->setAlignment(Qt::AlignTop);
    m_listener.listen(query<ISubject>(m_controller.get()));
}

bool RowList::fits(const QWidget& widget) {
    const auto* area = qobject_cast<const QScrollArea*>(&widget);
    return area && rowsOf(*area);
}

bool RowList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && m_count == 0) {
        fill(); // at once: nobody sees an empty list first
    } else if (event->type() == QEvent::Show || event->type() == QEvent::Resize) {
        fillSoon();
    }
    return QObject::eventFilter(watched, event);
}

void RowList::rebuild() {
    const QWidget* focus = m_area->window()->focusWidget();
    const bool hadFocus = focus && m_area->widget()->isAncestorOf(focus);
    removeRows();
    m_area->verticalScrollBar()->setValue(0);
    if (hadFocus) {
        m_area->setFocus(Qt::OtherFocusReason);
    }
    fill();
}

void RowList::removeRows() {
    while (const auto* item = rowsOf(*m_area)->itemAt(0)) {
        delete item->widget(); // takes its place in the layout with it
    }
    m_rows.release();
    m_lastStop = m_area;
    m_count = 0;
    m_isComplete = false;
}

/// Less than one more height of the list is left below what is seen.
bool RowList::isMoreNeeded() const {
    const QScrollBar& bar = *m_area->verticalScrollBar();
    return !m_isComplete && m_area->isVisible() && bar.maximum() - bar.value() < m_area->viewport()->height();
}

void RowList::fill() {
    if (!isMoreNeeded()) {
        return;
    }
    for (int i = 0; i < kPortion && addRow(); ++i) {
    }
    fillSoon(); // when the new rows have their places
}

bool RowList::addRow() {
    const auto child = findObject<IController>(*m_controller, m_children + std::to_string(m_count));
    QWidget* row = child ? m_rows.make(*child, m_area->widget()) : nullptr;
    if (!row) {
        m_isComplete = true;
        return false;
    }
    rowsOf(*m_area)->addWidget(row);
    m_lastStop = &placeInTabOrder(*m_lastStop, *row);
    row->show();
    ++m_count;
    return true;
}

} // namespace xbr::host
