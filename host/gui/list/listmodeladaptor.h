#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/ref.h"
#include "host/base/listener.h"

#include <QAbstractTableModel>

#include <functional>
#include <vector>

namespace xbr::host {

/// Rows and columns of a module's list model for Qt's views. Cells are read when they are painted; what the
/// model signals is taken up once with the next turn of the event loop, however often it was said.
class ListModelAdaptor final : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr int kCellStyleRole = Qt::UserRole; ///< a CellStyle as int

    ListModelAdaptor(Ref<IListViewModel> model, QObject* parent);

    IListViewModel& source() const { return *m_model; }

    /// Takes up at once what was signalled. Rows are those of the source afterwards.
    void update();

    /// The rows of the source that are the selection now, in their order.
    std::vector<int> selectedRows() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Width of a column in points.
    int columnWidth(int column) const { return m_columns[static_cast<std::size_t>(column)].width; }

    /// True while rows are being brought into line with the source: what Qt makes of selection and focus
    /// meanwhile is not what the user wants.
    bool isUpdating() const { return m_isUpdating; }

signals:
    /// Selection or focus of the source may differ from what was known.
    void selectionOutdated();

protected:
    void customEvent(QEvent* event) override;

private:
    /// Tells rows apart; never followed.
    using Identity = const void*;

    struct KnownColumn {
        QString title;
        int width;
    };

    void hear(const IMessage& message);
    void schedule();
    std::vector<KnownColumn> readColumns() const;
    std::vector<Identity> readRows() const;
    bool updateRows();
    void replaceRows(int first, int removed, int added, std::vector<Identity> rows);

    Ref<IListViewModel> m_model;
    std::vector<KnownColumn> m_columns; ///< read once: they do not change, not even when the owner goes
    std::vector<Identity> m_rows;
    Listener m_listener;
    bool m_isScheduled = false;
    bool m_isUpdating = false;
    bool m_isChanged = false;
    bool m_isSelectionChanged = false;
};

} // namespace xbr::host
