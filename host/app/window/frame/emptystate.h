#pragma once

#include <QFrame>

class QPushButton;

namespace xbr::host {

/// What stands in the place of an empty list: what it is for, and how to fill it.
class EmptyState final : public QFrame {
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent);

    QPushButton& button() { return *m_button; }

private:
    QPushButton* m_button;
};

} // namespace xbr::host
