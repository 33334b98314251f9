#pragma once

#include "host/gui/list/listmodeladaptor.h"

#include <QColor>
#include <QStyledItemDelegate>

#include <functional>

namespace xbr::host {

/// Paints the cells of a list in the colours of their styles.
class CellDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    CellDelegate(QObject* parent, std::function<QColor(CellStyle)> colourOf)
        : QStyledItemDelegate(parent),
          m_colourOf(std::move(colourOf)) {}

    /// A text that is cut off is shown in full.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    std::function<QColor(CellStyle)> m_colourOf;
};

} // namespace xbr::host
