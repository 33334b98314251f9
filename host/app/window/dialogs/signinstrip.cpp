#include "host/app/window/dialogs/signinstrip.h"

#include "host/app/publishing/signin/account.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

namespace xbr::host {

SignInStrip::SignInStrip(HostSession& session, QString address, QWidget* parent)
    : QWidget(parent),
      m_session(&session),
      m_address(std::move(address)),
      m_copy(new QPushButton(tr("Copy the address"), this)),
      m_link(new QLineEdit(this)) {
    setObjectName("signInStrip");
    m_copy->setObjectName("copyAddress");
    m_copy->setAutoDefault(false);
    m_link->setObjectName("linkBack");
    auto* linkLabel = new QLabel(tr("Link back"), this);
    linkLabel->setBuddy(m_link);
    auto* goOn = new QPushButton(tr("Go on"), this);
    goOn->setObjectName("goOn");
    goOn->setAutoDefault(false);
    connect(m_copy, &QPushButton::clicked, this, &SignInStrip::copyAddress);
    connect(goOn, &QPushButton::clicked, this, &SignInStrip::goOn);
    connect(m_link, &QLineEdit::returnPressed, this, &SignInStrip::goOn);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), parent), &QShortcut::activated,
            this, &SignInStrip::copyAddress);
    connect(new QShortcut(QKeySequence(QKeySequence::Paste), parent), &QShortcut::activated, this,
            &SignInStrip::paste);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(24, 12, 24, 16);
    layout->addWidget(new QLabel(tr("Nothing happened?"), this), 1, 0, 1, 2);
    layout->addWidget(m_copy, 1, 2);
    layout->addWidget(linkLabel, 2, 0);
    layout->addWidget(m_link, 2, 1);
    layout->addWidget(goOn, 2, 2);
    layout->setColumnStretch(1, 1);
}

void SignInStrip::copyAddress() {
    static constexpr int kTold = 2000; // milliseconds
    QGuiApplication::clipboard()->setText(m_address);
    m_copy->setText(tr("Copied"));
    QTimer::singleShot(kTold, m_copy, [this] { m_copy->setText(tr("Copy the address")); });
}

void SignInStrip::paste() {
    m_link->setText(QGuiApplication::clipboard()->text());
    m_link->setFocus();
}

void SignInStrip::goOn() {
    const std::string link = m_link->text().trimmed().toStdString();
    const std::string problem = problemOfLinkBack(link, m_session->settings());
    emit noticed(QString::fromStdString(problem));
    if (problem.empty()) {
        m_session->takeLinkBack(link);
    }
}

} // namespace xbr::host
