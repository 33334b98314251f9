#include "host/gui/list/listmodeladaptor.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "host/base/qttext.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace xbr::host {

namespace {} // namespace

ListModelAdaptor::ListModelAdaptor(Ref<IListViewModel> model, QObject* parent)
    : QAbstractTableModel(parent),
      m_model(std::move(model)),
      m_columns(readColumns()),
      m_rows(readRows()),
      m_listener([this](ISubject*, const IMessage& message) { hear(message); }) {
    m_listener.listen(query<ISubject>(m_model.get()));
}

void ListModelAdaptor::hear(const IMessage& message) {
    if (isNamed(message, "itemChanged")) {
        const auto row = static_cast<int>(integerOf(message.argument(0), -1));
        if (!m_isChanged && hasIndex(row, 0)) {
            emit dataChanged(index(row, 0), index(row, columnCount() - 1));
        }
        return;
    }
    m_isChanged = m_isChanged || isNamed(message, "changed");
    m_isSelectionChanged = m_isSelectionChanged || isNamed(message, "selectionChanged");
    schedule();
}

void ListModelAdaptor::schedule() {
    if (!m_isScheduled) {
        m_isScheduled = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }
}

void ListModelAdaptor::customEvent(QEvent*) {
    update();
}

void ListModelAdaptor::update() {
    m_isScheduled = false;
    const bool isChanged = std::exchange(m_isChanged, false) || m_model->countRows() != rowCount();
    bool isSelectionOutdated = std::exchange(m_isSelectionChanged, false);
    if (isChanged) {
        isSelectionOutdated = updateRows() || isSelectionOutdated;
    }
    if (isSelectionOutdated) {
        emit selectionOutdated();
    }
}

std::vector<ListModelAdaptor::KnownColumn> ListModelAdaptor::readColumns() const {
    std::vector<KnownColumn> columns;
    for (std::int32_t i = 0; i < m_model->countColumns(); ++i) {
        const Column column = m_model->columnAt(i);
        columns.push_back({toQString(column.title), column.width});
    }
    return columns;
}

std::vector<ListModelAdaptor::Identity> ListModelAdaptor::readRows() const {
    std::vector<Identity> rows;
    const std::int32_t count = m_model->countRows();
    rows.reserve(static_cast<std::size_t>(count));
    for (std::int32_t row = 0; row < count; ++row) {
        Ref<IObject> item;
        m_model->getItem(row, item.out());
        rows.push_back(item.get());
    }
    return rows;
}

bool ListModelAdaptor::updateRows() {
    auto rows = readRows();
    const auto [oldStart, newStart] = std::mismatch(m_rows.begin(), m_rows.end(), rows.begin(), rows.end());
    if (oldStart == m_rows.end() && newStart == rows.end()) {
        if (!m_rows.empty()) {
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        }
        return false;
    }
    // What lies between the equal beginning and the equal end came or went; the rest keeps its place in the
    // view.
    const auto [oldTail, newTail] = std::mismatch(m_rows.rbegin(), std::make_reverse_iterator(oldStart),
                                                  rows.rbegin(), std::make_reverse_iterator(newStart));
    const auto removed = static_cast<int>(oldTail.base() - oldStart);
    const auto added = static_cast<int>(newTail.base() - newStart);
    m_isUpdating = true;
    replaceRows(static_cast<int>(oldStart - m_rows.begin()), removed, added, std::move(rows));
    m_isUpdating = false;
    return true;
}

void ListModelAdaptor::replaceRows(int first, int removed, int added, std::vector<Identity> rows) {
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + first + removed);
        endRemoveRows();
    }
    if (added > 0) {
        beginInsertRows({}, first, first + added - 1);
        m_rows = std::move(rows);
        endInsertRows();
    }
}

std::vector<int> ListModelAdaptor::selectedRows() const {
    std::vector<int> selected;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_model->isSelected(row)) {
            selected.push_back(row);
        }
    }
    return selected;
}

int ListModelAdaptor::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ListModelAdaptor::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ListModelAdaptor::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != kCellStyleRole)) {
        return {};
    }
    Ref<IString> text;
    auto style = CellStyle::kNormal;
    if (m_model->getCell(index.row(), index.column(), text.out(), &style) != kOk) {
        return {};
    }
    return role == kCellStyleRole ? QVariant(static_cast<int>(style)) : QVariant(toQString(text->text()));
}

QVariant ListModelAdaptor::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= columnCount()) {
        return {};
    }
    return m_columns[static_cast<std::size_t>(section)].title;
}

} // namespace xbr::host
