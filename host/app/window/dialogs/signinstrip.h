#pragma once

#include "host/app/session/hostsession.h"

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace xbr::host {

/// Under the form of a sign-in: the way out for those whose browser did not open, or does not come back. The
/// address can be copied, and the link back pasted.
class SignInStrip final : public QWidget {
    Q_OBJECT

public:
    SignInStrip(HostSession& session, QString address, QWidget* parent);

signals:
    /// What is wrong with a link that was pasted; empty when nothing is.
    void noticed(const QString& text);

private:
    void copyAddress();
    void paste();
    void goOn();

    HostSession* m_session;
    QString m_address;
    QPushButton* m_copy;
    QLineEdit* m_link;
};

} // namespace xbr::host
