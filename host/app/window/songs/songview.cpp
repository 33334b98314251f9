#include "host/app/window/songs/songview.h"

#include "host/app/window/look/icon.h"
#include "host/app/window/look/tints.h"
#include "host/gui/hostwidgets.h"

#include <QHeaderView>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace xbr::host {

namespace {

constexpr int kGreatestTypedNumber = 9999;

bool isQuiet(int column) {
    return column == SongListModel::kNumber || column == SongListModel::kLength ||
           column == SongListModel::kFormat;
}

constexpr int kWidths[] = {24, 44, 170, 140, 120, 120, 110, 62, 160}; ///< points; shares of what there is
constexpr int kLeastWidth = 60;

bool isFixed(int column) {
    return column == SongListModel::kMark || column == SongListModel::kNumber ||
           column == SongListModel::kLength;
}

QString widestFormat() {
    static constexpr int kRate = 44100;
    static constexpr int kBitRate = 320;
    return formatText({"MP3", 0, kRate, 0, kBitRate});
}

constexpr int kIconSize = 56;

QLabel* addLine(QVBoxLayout& layout, const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout.addWidget(label);
    return label;
}

} // namespace

/// Cells of the list of songs, and the fields that edit them.
class SongView::Delegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setGenres(const QStringList& genres) { m_genres = genres; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    QStringList m_genres;
};

QWidget* SongView::Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
    auto* field = new QLineEdit(parent);
    field->setFrame(false);
    field->setAccessibleName(
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString());
    if (index.column() == SongListModel::kNumber) {
        field->setAlignment(Qt::AlignRight);
        field->setValidator(new QIntValidator(0, kGreatestTypedNumber, field));
    } else if (index.column() == SongListModel::kGenre) {
        offerNames(*field, m_genres);
    }
    return field;
}

void SongView::Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    qobject_cast<QLineEdit*>(editor)->setText(index.data(Qt::DisplayRole).toString());
}

void SongView::Delegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                      const QModelIndex& index) const {
    model->setData(index, qobject_cast<QLineEdit*>(editor)->text(), Qt::EditRole);
}

void SongView::Delegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (isQuiet(index.column()) && !(option->state & QStyle::State_Selected)) {
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
    }
    const auto* songs = qobject_cast<const SongListModel*>(index.model());
    if (songs && !songs->song(index.row()).problem.isEmpty()) {
        option->font.setItalic(true);
    }
}

/// A cell that needs a look is outlined.
void SongView::Delegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.data(SongListModel::kProblemRole).toString().isEmpty()) {
        painter->setPen(noticeColor(NoticeKind::kWarning, option.palette));
        painter->drawRect(option.rect.adjusted(1, 2, -2, -3));
    }
}

SongView::SongView(SongListModel& model, QWidget* parent)
    : QTreeView(parent),
      m_songs(&model),
      m_delegate(new Delegate(this)) {
    setObjectName("songs");
    setAccessibleName(tr("Songs"));
    setModel(&model);
    setItemDelegate(m_delegate);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(false);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(DoubleClicked | EditKeyPressed | SelectedClicked);
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideRight);
    setFrameShape(NoFrame);
    setTabKeyNavigation(false);
    setDragEnabled(true);
    setDragDropMode(DragDrop);
    setDropIndicatorShown(false);
    header()->setStretchLastSection(true);
    header()->setHighlightSections(false);
    header()->setTextElideMode(Qt::ElideRight);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header()->setAccessibleName(tr("Columns"));
    for (int column = 0; column < SongListModel::kColumnCount; ++column) {
        header()->resizeSection(column, kWidths[column]);
    }
}

bool SongView::hasSelection() const {
    return selectionModel()->hasSelection();
}

std::vector<int> SongView::selectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::vector<int> SongView::chosenRows() const {
    auto rows = selectedRows();
    if (rows.empty()) {
        rows.resize(static_cast<std::size_t>(m_songs->rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    return rows;
}

void SongView::removeSelected() {
    const auto rows = selectedRows();
    // From the end, in runs: what is before keeps its number.
    for (auto last = rows.rbegin(); last != rows.rend();) {
        auto first = last;
        while (first + 1 != rows.rend() && *(first + 1) == *first - 1) {
            ++first;
        }
        m_songs->removeRows(*first, *last - *first + 1);
        last = first + 1;
    }
}

void SongView::selectRows(const std::vector<int>& rows) {
    // One range for rows that follow each other: many ranges are slow to draw, and to keep in a new order.
    QItemSelection selection;
    for (std::size_t first = 0, last = 0; first < rows.size(); first = ++last) {
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) {
            ++last;
        }
        selection.select(m_songs->index(rows[first], 0),
                         m_songs->index(rows[last], SongListModel::kColumnCount - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.empty()) {
        selectionModel()->setCurrentIndex(m_songs->index(rows.front(), SongListModel::kTitle),
                                          QItemSelectionModel::NoUpdate);
        scrollTo(currentIndex());
    }
}

void SongView::editCell(int row, int column) {
    setFocus(Qt::OtherFocusReason);
    setCurrentIndex(m_songs->index(row, column));
    scrollTo(currentIndex());
    if (m_songs->flags(currentIndex()) & Qt::ItemIsEditable) {
        edit(currentIndex());
    }
}

int SongView::rowBefore(const QPoint& place) const {
    const QModelIndex index = indexAt(place);
    if (!index.isValid()) {
        return m_songs->rowCount();
    }
    const QRect cell = visualRect(index);
    return index.row() + (place.y() > cell.center().y() ? 1 : 0);
}

void SongView::setDropRow(int row) {
    m_dropRow = row;
    viewport()->update();
}

void SongView::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void SongView::dragMoveEvent(QDragMoveEvent* event) {
    if (event->mimeData()->hasFormat(SongListModel::kRowsType)) {
        setDropRow(rowBefore(event->position().toPoint()));
        event->acceptProposedAction();
    }
}

void SongView::dragLeaveEvent(QDragLeaveEvent*) {
    setDropRow(-1);
}

void SongView::dropEvent(QDropEvent* event) {
    const auto rows = SongListModel::rowsOf(*event->mimeData());
    const int before = rowBefore(event->position().toPoint());
    setDropRow(-1);
    event->acceptProposedAction();
    if (!rows.empty()) {
        emit moveAsked(rows, before);
    }
}

/// The line shows where dragged rows would go.
void SongView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (m_dropRow < 0) {
        return;
    }
    static constexpr int kDot = 3; ///< radius, points
    const int last = m_songs->rowCount() - 1;
    const QRect row = visualRect(m_songs->index(std::min(m_dropRow, last), 0));
    const int y = std::max(m_dropRow > last ? row.bottom() : row.top(), kDot);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Link), 2));
    painter.setBrush(palette().color(QPalette::Link));
    painter.drawLine(0, y, viewport()->width(), y);
    painter.drawEllipse(QPoint(kDot + 1, y), kDot, kDot);
}

void SongView::editCurrent() {
    if (currentIndex().isValid()) {
        edit(currentIndex());
    }
}

int SongView::neededWidth(int column) const {
    static constexpr int kPadding = 24;
    const QString widest[] = {"!", "9999", {}, {}, {}, {}, {}, "0:00:00", widestFormat()};
    return std::max(fontMetrics().horizontalAdvance(widest[column]) + kPadding,
                    header()->sectionSizeHint(column));
}

/// The columns fill the view: those of numbers take what they need, the others share the rest in the
/// proportions that the user gave them, and the title takes what is left.
void SongView::fitColumns() {
    int rest = viewport()->width() - neededWidth(SongListModel::kFormat);
    int present = 0;
    for (int column = 0; column < SongListModel::kFormat; ++column) {
        present += isFixed(column) ? 0 : header()->sectionSize(column);
        rest -= isFixed(column) ? neededWidth(column) : 0;
    }
    const int shared = rest;
    for (int column = 0; column < SongListModel::kFormat && present > 0; ++column) {
        if (isFixed(column)) {
            header()->resizeSection(column, neededWidth(column));
        } else if (column != SongListModel::kTitle) {
            const int share = header()->sectionSize(column) * shared / present;
            header()->resizeSection(column, std::max(share, header()->sectionSizeHint(column)));
            rest -= header()->sectionSize(column);
        }
    }
    header()->resizeSection(SongListModel::kTitle, std::max(rest, kLeastWidth));
}

void SongView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (event->oldSize().width() != event->size().width()) {
        fitColumns();
    }
}

void SongView::setGenres(const QStringList& genres) {
    m_delegate->setGenres(genres);
}

EmptyState::EmptyState(QWidget* parent) : QFrame(parent), m_button(new QPushButton(tr("&Add Songs…"), this)) {
    setObjectName("emptyState");
    m_button->setObjectName("addFirst");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(8);
    layout->addStretch(3);
    auto* picture = new IconLabel("waveform", kIconSize, this);
    layout->addWidget(picture, 0, Qt::AlignHCenter);
    layout->addSpacing(8);
    addLine(*layout, "emptyTitle", tr("Drop your finished songs here"))
        ->setFont(scaledFont(1.25, QFont::DemiBold));
    addLine(*layout, "emptyText", tr("WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder"));
    layout->addSpacing(12);
    layout->addWidget(m_button, 0, Qt::AlignHCenter);
    layout->addStretch(4);
}

} // namespace xbr::host
