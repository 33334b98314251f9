#include "host/gui/list/listselection.h"

#include <QItemSelectionModel>

#include <algorithm>

namespace xbr::host {

namespace {

/// Rows in ascending order as ranges over all columns.
QItemSelection rangesOf(const std::vector<int>& rows, const ListModelAdaptor& model) {
    QItemSelection ranges;
    for (std::size_t first = 0, i = 0; i < rows.size(); ++i) {
        const bool isLast = i + 1 == rows.size() || rows[i + 1] != rows[i] + 1;
        if (isLast) {
            ranges.append(QItemSelectionRange(model.index(rows[first], 0),
                                              model.index(rows[i], model.columnCount() - 1)));
            first = i + 1;
        }
    }
    return ranges;
}

/// Marks the rows of some ranges.
std::vector<bool> marked(const QItemSelection& ranges, int rowCount) {
    std::vector<bool> marks(static_cast<std::size_t>(rowCount));
    for (const QItemSelectionRange& range : ranges) {
        for (int row = range.top(); row <= range.bottom() && row < rowCount; ++row) {
            marks[static_cast<std::size_t>(row)] = true;
        }
    }
    return marks;
}

} // namespace

ListSelection::ListSelection(QAbstractItemView& view, ListModelAdaptor& rows)
    : QObject(&view),
      m_view(&view),
      m_rows(&rows) {
    connect(m_rows, &ListModelAdaptor::selectionOutdated, this, &ListSelection::takeFromSource);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ListSelection::selectionChanged);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { currentChanged(current); });
    takeFromSource();
}

void ListSelection::takeFromSource() {
    const auto rows = m_rows->selectedRows();
    auto known = m_order;
    std::sort(known.begin(), known.end());
    if (!std::equal(known.begin(), known.end(), rows.begin(), rows.end())) {
        m_order.assign(rows.begin(), rows.end());
    }
    m_isTaking = true;
    QItemSelectionModel& selection = *m_view->selectionModel();
    selection.select(rangesOf(rows, *m_rows), QItemSelectionModel::ClearAndSelect);
    const int focus = m_rows->source().focus();
    if (selection.currentIndex().row() != focus) {
        selection.setCurrentIndex(m_rows->index(focus, 0), QItemSelectionModel::NoUpdate);
    }
    m_isTaking = false;
}

void ListSelection::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    if (m_isTaking || m_rows->isUpdating()) {
        return;
    }
    const auto gone = marked(deselected, m_rows->rowCount());
    const auto come = marked(selected, m_rows->rowCount());
    std::erase_if(m_order, [&](std::int32_t row) {
        const auto at = static_cast<std::size_t>(row);
        return at >= gone.size() || gone[at] || come[at];
    });
    for (std::size_t row = 0; row < come.size(); ++row) {
        if (come[row]) {
            m_order.push_back(static_cast<std::int32_t>(row));
        }
    }
    m_rows->source().setSelection(m_order.data(), static_cast<std::int32_t>(m_order.size()));
    // The focus goes with the selection: what is typed next must not change a row that was just taken out of
    // it.
    const auto focus = static_cast<std::size_t>(m_view->currentIndex().row());
    if (focus < gone.size() && gone[focus] && !come[focus] && !m_order.empty()) {
        m_view->selectionModel()->setCurrentIndex(m_rows->index(m_order.back(), 0),
                                                  QItemSelectionModel::NoUpdate);
    }
}

void ListSelection::currentChanged(const QModelIndex& current) {
    if (!m_isTaking && !m_rows->isUpdating()) {
        m_rows->source().setFocus(current.row());
    }
}

} // namespace xbr::host
