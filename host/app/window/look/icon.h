#pragma once

#include <QIcon>
#include <QWidget>

namespace xbr::host {

/// A symbol of this program, drawn in the colour of text as it is at the moment of drawing, at any size.
/// Icons that stand on the accent colour say so.
enum class IconColor { kText, kQuiet, kOnAccent };
QIcon symbolIcon(const QString& name, IconColor color = IconColor::kText);

/// Shows a symbol of a size in points; decoration, so that screen readers do not hear of it.
class IconLabel final : public QWidget {
    Q_OBJECT

public:
    IconLabel(const QString& name, int size, QWidget* parent);

    void setIcon(const QString& name, const QColor& color = {});

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    QColor m_color; ///< invalid: that of quiet text
};

} // namespace xbr::host
