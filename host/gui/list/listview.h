#pragma once

#include "framework/abi/locale.h"
#include "host/gui/list/listmodeladaptor.h"

#include <QColor>
#include <QTreeView>

namespace xbr::host {

/// The list of a form: rows of a list model in columns, with a target for dropped files. Skins name it
/// QTreeView; a style sheet may set the colours of its cells.
class ListView final : public QTreeView {
    Q_OBJECT
    Q_PROPERTY(QColor busyColor MEMBER m_busyColor)
    Q_PROPERTY(QColor errorColor MEMBER m_errorColor)
    Q_PROPERTY(bool dropTarget READ isDropTarget)

public:
    explicit ListView(QWidget* parent);

    /// Shows a model; it must live as long as this view shows it.
    void showModel(ListModelAdaptor& model);

    /// What an empty list says about itself.
    void setPlaceholder(const QString& text);

    /// The name of the menu's entry for removing rows; empty for none.
    void setRemoveText(const QString& text) { m_removeText = text; }

    /// The language in which the names of the model's commands are shown; as they are without.
    void setTranslations(Ref<ITranslationTable> translations) { m_translations = std::move(translations); }

    QColor colorOf(CellStyle style) const;

    /// True while something that the model would take is dragged over the list.
    bool isDropTarget() const { return m_isDropTarget; }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    std::vector<int> wantedWidths() const;
    void fitColumns();
    void setDropTarget(bool isTarget);
    std::vector<int> removableRows() const;
    void removeSelected();
    QPoint menuPosition(const QContextMenuEvent& event) const;

    ListModelAdaptor* m_rows = nullptr;
    QColor m_busyColor;
    QColor m_errorColor;
    QString m_placeholder;
    QString m_removeText;
    Ref<ITranslationTable> m_translations;
    bool m_isDropTarget = false;
    bool m_isFitting = false;
    bool m_isFittedByHand = false; ///< the user chose the columns' widths
};

} // namespace xbr::host
