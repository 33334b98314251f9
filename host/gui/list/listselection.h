#pragma once

#include "host/gui/list/listmodeladaptor.h"

#include <QAbstractItemView>
#include <QItemSelection>

#include <vector>

namespace xbr::host {

/// Keeps selection and focus of a list view and of the model behind it in line, without echo.
class ListSelection final : public QObject {
    Q_OBJECT

public:
    /// Belongs to `view`, which shows `rows`.
    ListSelection(QAbstractItemView& view, ListModelAdaptor& rows);

private:
    void takeFromSource();
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
    void currentChanged(const QModelIndex& current);

    QAbstractItemView* m_view;
    ListModelAdaptor* m_rows;
    std::vector<std::int32_t> m_order; ///< selected rows in the order of selection
    bool m_isTaking = false;           ///< what the view changes now comes from the model
};

} // namespace xbr::host
