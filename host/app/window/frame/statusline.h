#pragma once

#include "host/app/publishing/upload/progress.h"
#include "host/app/window/look/notice.h"

#include <QFrame>

class QBoxLayout;
class QLabel;
class QToolButton;

namespace xbr::host {

class IconLabel;
class ProgressRow;

/// The bar below the list that says what happens, what went wrong and what can be done about it, in plain
/// words. One notice at a time: what happens at the moment covers the others, which come back afterwards.
class StatusLine final : public QFrame {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    /// Good news do not take the place of a warning that nobody may have read yet.
    void showNotice(const Notice& notice);
    void showProgress(const UploadProgress& progress);

    /// Something begins anew, and what was said of it before is no longer true.
    void clear();

    /// What is shown.
    const Notice& notice() const { return m_busy.kind == NoticeKind::kNone ? m_standing : m_busy; }

signals:
    /// The user wants what runs to end.
    void stopAsked();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void showSteps();
    void setLevel(const char* level);
    void paintIcon();
    void announce();

    Notice m_standing;
    Notice m_busy;
    IconLabel* m_icon;
    QLabel* m_text;
    QLabel* m_lines;
    QToolButton* m_unfold;
    QWidget* m_steps;
    QToolButton* m_dismiss;
    ProgressRow* m_progress;
    QBoxLayout* m_row;
};

} // namespace xbr::host
