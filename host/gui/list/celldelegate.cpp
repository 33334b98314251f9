#include "host/gui/list/celldelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace xbr::host {

void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto style = static_cast<CellStyle>(index.data(ListModelAdaptor::kCellStyleRole).toInt());
    if (style == CellStyle::kNormal) {
        return;
    }
    option->palette.setColor(QPalette::Text, m_colourOf(style));
    option->palette.setColor(QPalette::HighlightedText, m_colourOf(style));
    option->font.setBold(true);
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    const QString text = index.data().toString();
    const bool isCut = sizeHint(option, index).width() > view->visualRect(index).width();
    if (event->type() == QEvent::ToolTip && isCut) {
        // As rich text a name could ask for anything; what is escaped is shown as it is.
        QToolTip::showText(event->globalPos(), QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()), view);
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

} // namespace xbr::host
