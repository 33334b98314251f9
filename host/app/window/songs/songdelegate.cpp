#include "host/app/window/songs/songdelegate.h"

#include "host/app/window/songs/songlistmodel.h"

#include <QCompleter>
#include <QIntValidator>
#include <QLineEdit>

namespace xbr::host {

namespace {

constexpr int kGreatestNumber = 9999;

bool isQuiet(int column) {
    return column == SongListModel::kNumber || column == SongListModel::kLength ||
           column == SongListModel::kFormat;
}

} // namespace

QWidget* SongDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    auto* field = new QLineEdit(parent);
    field->setFrame(false);
    field->setAccessibleName(
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole).toString());
    if (index.column() == SongListModel::kNumber) {
        field->setAlignment(Qt::AlignRight);
        field->setValidator(new QIntValidator(0, kGreatestNumber, field));
    } else if (index.column() == SongListModel::kGenre) {
        auto* completer = new QCompleter(m_genres, field);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        field->setCompleter(completer);
    }
    return field;
}

void SongDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    qobject_cast<QLineEdit*>(editor)->setText(index.data(Qt::DisplayRole).toString());
}

void SongDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    model->setData(index, qobject_cast<QLineEdit*>(editor)->text(), Qt::EditRole);
}

void SongDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (isQuiet(index.column()) && !(option->state & QStyle::State_Selected)) {
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
    }
    const auto* songs = qobject_cast<const SongListModel*>(index.model());
    if (songs && !songs->song(index.row()).problem.isEmpty()) {
        option->font.setItalic(true);
    }
}

} // namespace xbr::host
