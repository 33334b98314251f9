#pragma once

#include "host/app/publishing/notice.h"

#include <QFrame>

class QLabel;
class QToolButton;

namespace xbr::host {

class IconLabel;

/// The line at the window's lower edge that says what happens, and what went wrong, in plain words.
class StatusLine final : public QFrame {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    /// Good news do not hide a warning that nobody may have read yet; whatever begins anew does.
    void showNotice(const Notice& notice);
    const Notice& notice() const { return m_notice; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void put(const Notice& notice);
    void paintIcon();

    Notice m_notice;
    IconLabel* m_icon;
    QLabel* m_text;
    QToolButton* m_dismiss;
};

} // namespace xbr::host
