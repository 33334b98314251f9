#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace xbr::host {

/// What a progress indicator looks like: a title, a bar, what is worked on, and a button to cancel.
class ProgressSheet final : public QDialog {
    Q_OBJECT

public:
    ProgressSheet(QWidget* parent, const QString& title, bool isCancellable);

    void tell(double fraction, const QString& what);

    /// The user wants the work to end; it does when it looks next.
    void cancel();
    bool isCancelled() const { return m_isCancelled; }

    /// Escape and the frame's close button cancel the work, too.
    void reject() override { cancel(); }

private:
    bool m_isCancellable;
    bool m_isCancelled = false;
    QProgressBar* m_bar;
    QLabel* m_what;
    QPushButton* m_cancel;
};

} // namespace xbr::host
