#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace xbr::host {

/// The text of a label or button as plain text. Where the widget takes any width that it is given (size
/// policy "Ignored"), it is cut off with dots to what fits, and shown in full to screen readers and as a tool
/// tip.
class ElidedText final : public QObject {
    Q_OBJECT

public:
    /// Belongs to `widget`, for which `fits` holds.
    explicit ElidedText(QWidget& widget);

    static bool fits(const QWidget& widget);

    void set(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show();
    QString elided() const;

    QWidget* m_widget;
    QString m_text;
};

} // namespace xbr::host
