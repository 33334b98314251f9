#pragma once

#include "host/app/session/hostsession.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace xbr::host {

/// Under the form of a sign-in: the way out for those whose browser did not open, or does not come back. The
/// address can be copied, and the link back pasted.
class SignInStrip final : public QWidget {
    Q_OBJECT

public:
    SignInStrip(HostSession& session, QString address, QWidget* parent);

    /// A sentence above the rest; an empty one takes it away.
    void tell(const QString& text);

private:
    void copyAddress();
    void paste();
    void goOn();

    HostSession* m_session;
    QString m_address;
    QLabel* m_notice;
    QPushButton* m_copy;
    QLineEdit* m_link;
};

} // namespace xbr::host
