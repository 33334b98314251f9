#include "host/app/window/frame/header.h"

#include "host/app/publishing/verdict/words.h"
#include "host/app/window/look/tints.h"
#include "host/app/window/songs/songlistmodel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace xbr::host {

namespace {

constexpr int kToolSize = 18;

} // namespace

Header::Header(const SongListModel& songs, QWidget* parent)
    : QWidget(parent),
      m_songs(&songs),
      m_summary(new QLabel(this)),
      m_publish(new QToolButton(this)),
      m_entries(new QMenu(this)) {
    setObjectName("header");
    setAttribute(Qt::WA_StyledBackground);
    auto* title = new QLabel(tr("Songs"), this);
    title->setFont(scaledFont(1.45, QFont::DemiBold));
    m_summary->setObjectName("summary");
    m_publish->setObjectName("publish");
    m_publish->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_publish->setIconSize(QSize(kToolSize, kToolSize));
    m_publish->setFocusPolicy(Qt::StrongFocus);
    m_publish->setMenu(m_entries);
    m_publish->hide();

    auto* texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(title);
    texts->addWidget(m_summary);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 12, 16, 12);
    layout->setSpacing(6);
    layout->addLayout(texts, 1);
    layout->addWidget(m_publish);

    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(m_songs, change, this, [this] { showSummary(); });
    }
    connect(m_songs, &QAbstractItemModel::dataChanged, this, [this] { showSummary(); });
    showSummary();
}

void Header::addButton(QAction& action) {
    auto* button = new QToolButton(this);
    button->setDefaultAction(&action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIconSize(QSize(kToolSize, kToolSize));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(action.iconText());
    auto* row = qobject_cast<QHBoxLayout*>(layout());
    row->insertWidget(row->count() - 1, button);
    setTabOrder(button, m_publish);
}

void Header::setPublishEntries(const QList<QAction*>& entries) {
    m_entries->clear();
    m_entries->addActions(entries);
    m_publish->setVisible(!entries.isEmpty());
    if (entries.isEmpty()) {
        return;
    }
    m_publish->setDefaultAction(entries.front());
    m_publish->setAccessibleName(entries.front()->text());
    m_publish->setPopupMode(entries.size() > 1 ? QToolButton::MenuButtonPopup : QToolButton::DelayedPopup);
    m_publish->setMenu(entries.size() > 1 ? m_entries : nullptr);
}

void Header::showSummary() {
    const int count = m_songs->rowCount();
    QString text = count == 0 ? tr("None yet") : tr("%n song(s)", nullptr, count);
    const QString length = QString::fromStdString(wordsOfLength(m_songs->totalMilliseconds()));
    m_summary->setText(length.isEmpty() ? text : text + QString::fromUtf8(" · ") + length);
}

} // namespace xbr::host
