#include "host/gui/build/rowlist.h"

#include "framework/support/objects/message.h"
#include "framework/support/parts/path.h"
#include "host/gui/build/taborder.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace xbr::host {

namespace {

/// How long rows are made before others have their turn.
constexpr int kMilliseconds = 2;

/// In heights of the list: how far from what is seen rows are made, and how far away they go.
constexpr int kNear = 1;
constexpr int kFar = 3;

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
    if (event->type() == QEvent::Show && m_made.empty()) {
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
    while (auto* item = rowsOf(*m_area)->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    m_rows.release();
    m_made.clear();
    m_isComplete = false;
}

/// What is seen, and so many heights of the list before and behind it, of the widget of the rows.
QRect RowList::surroundings(int heights) const {
    const int height = m_area->viewport()->height();
    const int top = m_area->verticalScrollBar()->value();
    return {0, top - heights * height, m_area->widget()->width(), (2 * heights + 1) * height};
}

/// Less than one more height of the list is left below what is seen.
bool RowList::isMoreNeeded() const {
    const QScrollBar& bar = *m_area->verticalScrollBar();
    return !m_isComplete && bar.maximum() - bar.value() < kNear * m_area->viewport()->height();
}

void RowList::fill() {
    if (!m_area->isVisible()) {
        return;
    }
    letGo(); // first: rows that are made now have no places yet
    QElapsedTimer clock;
    clock.start();
    for (bool hasMore = true; hasMore && clock.elapsed() < kMilliseconds;) {
        hasMore =
            bringBack(surroundings(0)) || bringBack(surroundings(kNear)) || (isMoreNeeded() && addRow());
        if (hasMore) {
            fillSoon(); // when the new rows have their places
        }
    }
}

void RowList::letGo() {
    const QRect kept = surroundings(kFar);
    QVBoxLayout& layout = *rowsOf(*m_area);
    for (std::size_t i = 0; i < m_made.size(); ++i) {
        QWidget* row = m_made[i].widget;
        const bool hasFocus = row && row->isAncestorOf(m_area->window()->focusWidget());
        if (row && !hasFocus && !row->geometry().intersects(kept)) {
            auto* place = new QSpacerItem(0, row->height(), QSizePolicy::Minimum, QSizePolicy::Fixed);
            delete row; // takes its place in the layout with it
            layout.insertItem(static_cast<int>(i), place);
            m_made[i] = {};
        }
    }
}

bool RowList::bringBack(const QRect& area) {
    const QVBoxLayout& layout = *rowsOf(*m_area);
    for (std::size_t i = 0; i < m_made.size(); ++i) {
        const bool isNear = layout.itemAt(static_cast<int>(i))->geometry().intersects(area);
        if (isNear && !m_made[i].widget && makeRow(i)) {
            return true;
        }
    }
    return false;
}

bool RowList::addRow() {
    m_made.emplace_back();
    m_isComplete = !makeRow(m_made.size() - 1);
    if (m_isComplete) {
        m_made.pop_back();
    }
    return !m_isComplete;
}

bool RowList::makeRow(std::size_t index) {
    const auto child = findObject<IController>(*m_controller, m_children + std::to_string(index));
    QWidget* row = child ? m_rows.make(*child, m_area->widget()) : nullptr;
    if (!row) {
        return false;
    }
    QVBoxLayout& layout = *rowsOf(*m_area);
    delete layout.takeAt(static_cast<int>(index)); // the place that was kept
    layout.insertWidget(static_cast<int>(index), row);
    const auto before = std::find_if(m_made.rend() - static_cast<std::ptrdiff_t>(index), m_made.rend(),
                                     [](const Row& made) { return made.lastStop != nullptr; });
    QWidget& stop = placeInTabOrder(before == m_made.rend() ? *m_area : *before->lastStop, *row);
    m_made[index] = {row, row->isAncestorOf(&stop) ? &stop : nullptr};
    row->show();
    return true;
}

} // namespace xbr::host
