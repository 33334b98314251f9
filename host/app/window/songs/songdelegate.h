#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

namespace xbr::host {

/// Cells of the list of songs, and the fields that edit them.
class SongDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setGenres(const QStringList& genres) { m_genres = genres; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    QStringList m_genres;
};

} // namespace xbr::host
