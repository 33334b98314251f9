#include "host/gui/list/listview.h"

#include "host/gui/list/celldelegate.h"
#include "host/gui/list/listgestures.h"
#include "host/gui/list/listselection.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace xbr::host {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr int kMinimumColumnWidth = 48;
constexpr qreal kTargetWidth = 2.0;
constexpr qreal kTargetRadius = 4.0;
constexpr int kTargetAlpha = 36;
constexpr int kPlaceholderMargin = 24;
constexpr float kPlaceholderOpacity = 0.7F;

} // namespace

ListView::ListView(QWidget* parent) : QTreeView(parent) {
    setItemDelegate(new CellDelegate(this, [this](CellStyle style) { return colorOf(style); }));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true); // else every row would be measured when a value changes
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setMinimumSectionSize(kMinimumColumnWidth);
    connect(header(), &QHeaderView::sectionResized, this,
            [this] { m_isFittedByHand = m_isFittedByHand || !m_isFitting; });
}

void ListView::showModel(ListModelAdaptor& model) {
    m_rows = &model;
    m_isFitting = true;
    setModel(&model);
    m_isFitting = false;
    new ListSelection(*this, model);
    fitColumns();
}

void ListView::setPlaceholder(const QString& text) {
    m_placeholder = text;
    setAccessibleDescription(text);
}

QColor ListView::colorOf(CellStyle style) const {
    switch (style) {
    case CellStyle::kBusy:
        return m_busyColor.isValid() ? m_busyColor : palette().color(QPalette::Link);
    case CellStyle::kError:
        return m_errorColor.isValid() ? m_errorColor : QColor(Qt::red);
    default:
        return palette().color(QPalette::Text);
    }
}

std::vector<int> ListView::wantedWidths() const {
    std::vector<int> widths;
    for (int column = 0; column < m_rows->columnCount(); ++column) {
        widths.push_back(static_cast<int>(m_rows->columnWidth(column) * logicalDpiX() / kPointsPerInch));
    }
    return widths;
}

void ListView::fitColumns() {
    if (!m_rows || m_isFittedByHand) {
        return;
    }
    // The widths are those of a roomy window: in a narrow panel the widest columns give way first.
    auto widths = wantedWidths();
    auto rest = viewport()->width();
    auto ascending = widths;
    std::sort(ascending.begin(), ascending.end());
    int limit = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < ascending.size() && limit == std::numeric_limits<int>::max(); ++i) {
        const int share = rest / static_cast<int>(ascending.size() - i);
        limit = ascending[i] > share ? share : limit;
        rest -= ascending[i];
    }
    m_isFitting = true;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        setColumnWidth(static_cast<int>(column),
                       std::max(kMinimumColumnWidth, std::min(widths[column], limit)));
    }
    m_isFitting = false;
}

void ListView::resizeEvent(QResizeEvent* event) {
    fitColumns();
    m_isFitting = true; // the last column fills the rest by itself
    QTreeView::resizeEvent(event);
    m_isFitting = false;
}

bool ListView::viewportEvent(QEvent* event) {
    if (m_rows && event->type() == QEvent::MouseButtonPress) {
        m_rows->update(); // what is clicked at is what was painted, but selection is told in the model's rows
    }
    return QTreeView::viewportEvent(event);
}

void ListView::setDropTarget(bool isTarget) {
    if (m_isDropTarget != isTarget) {
        m_isDropTarget = isTarget;
        viewport()->update();
    }
}

void ListView::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void ListView::dragMoveEvent(QDragMoveEvent* event) {
    const bool isTarget =
        m_rows && event->mimeData() &&
        m_rows->source().dragOver(draggedObjects(*event->mimeData()).get()) == DropEffect::kCopy;
    setDropTarget(isTarget);
    if (isTarget) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore();
    }
}

void ListView::dragLeaveEvent(QDragLeaveEvent*) {
    setDropTarget(false);
}

void ListView::dropEvent(QDropEvent* event) {
    setDropTarget(false);
    if (!m_rows || !event->mimeData()) {
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_rows->source().drop(draggedObjects(*event->mimeData()).get());
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if (m_rows) {
        m_rows->update();
    }
    if (m_rows && event->matches(QKeySequence::Delete)) {
        removeSelected();
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

std::vector<int> ListView::removableRows() const {
    std::vector<int> rows;
    for (const int row : m_rows->selectedRows()) {
        if (m_rows->source().isEditable(row)) {
            rows.push_back(row);
        }
    }
    return rows;
}

void ListView::removeSelected() {
    const QPointer<ListView> self(this);
    const auto rows = removableRows();
    const Ref<IListViewModel> source = Ref<IListViewModel>::share(&m_rows->source());
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        source->setFocus(*row);
        source->removeFocused();
    }
    if (!self || rows.empty()) {
        return;
    }
    m_rows->update();
    const int next = std::min(rows.front(), m_rows->rowCount() - 1);
    if (next >= 0) {
        setCurrentIndex(m_rows->index(next, 0));
    }
}

QPoint ListView::menuPosition(const QContextMenuEvent& event) const {
    if (event.reason() != QContextMenuEvent::Keyboard) {
        return event.globalPos();
    }
    const QRect row = visualRect(currentIndex()).intersected(viewport()->rect());
    return viewport()->mapToGlobal(row.isEmpty() ? QPoint() : row.bottomLeft());
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    if (!m_rows) {
        return;
    }
    m_rows->update();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    Ref<ICommandList> commands;
    if (m_rows->source().getContextCommands(commands.out()) == kOk) {
        addCommands(*menu, commands, m_translations.get());
    }
    if (!m_removeText.isEmpty()) {
        const QString key = QKeySequence(QKeySequence::Delete).toString(QKeySequence::NativeText);
        menu->addSeparator();
        auto* remove = menu->addAction(m_removeText + QLatin1Char('\t') + key);
        remove->setEnabled(!removableRows().empty());
        connect(remove, &QAction::triggered, this, &ListView::removeSelected);
    }
    menu->popup(menuPosition(*event));
    event->accept();
}

void ListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    QPainter painter(viewport());
    if (m_rows && m_rows->rowCount() == 0) {
        QColor quiet = palette().color(QPalette::Text);
        quiet.setAlphaF(kPlaceholderOpacity);
        painter.setPen(quiet);
        const QRect area = viewport()->rect().adjusted(kPlaceholderMargin, 0, -kPlaceholderMargin, 0);
        painter.drawText(area, static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, m_placeholder);
    }
    if (m_isDropTarget) {
        QColor accent = palette().color(QPalette::Link);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(accent, kTargetWidth));
        accent.setAlpha(kTargetAlpha);
        painter.setBrush(accent);
        painter.drawRoundedRect(QRectF(viewport()->rect()).adjusted(1, 1, -1, -1), kTargetRadius,
                                kTargetRadius);
    }
}

} // namespace xbr::host
