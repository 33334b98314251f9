#include "host/app/window/frame/statusline.h"

#include "host/app/window/look/icon.h"
#include "host/app/window/look/tints.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace xbr::host {

namespace {

constexpr int kNoticeIconSize = 18;

struct Look {
    const char* icon;
    const char* level; ///< what the style sheet tells apart
};

Look lookOf(NoticeKind kind) {
    switch (kind) {
    case NoticeKind::kBusy:
        return {"busy", "busy"};
    case NoticeKind::kDone:
        return {"done", "done"};
    case NoticeKind::kWarning:
        return {"warning", "warning"};
    case NoticeKind::kError:
        return {"error", "error"};
    default:
        return {"info", "info"};
    }
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QFrame(parent),
      m_icon(new IconLabel("info", kNoticeIconSize, this)),
      m_text(new QLabel(this)),
      m_dismiss(new QToolButton(this)) {
    setObjectName("statusLine");
    setAccessibleName(tr("Status"));
    m_text->setObjectName("statusText");
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_dismiss->setIcon(symbolIcon("close", IconColor::kQuiet));
    m_dismiss->setObjectName("dismiss");
    m_dismiss->setAutoRaise(true);
    m_dismiss->setToolTip(tr("Dismiss"));
    m_dismiss->setAccessibleName(tr("Dismiss"));
    connect(m_dismiss, &QToolButton::clicked, this, [this] { put({}); });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 10, 8);
    layout->setSpacing(10);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_dismiss);
    put({});
}

void StatusLine::showNotice(const Notice& notice) {
    const bool isWarned = m_notice.kind == NoticeKind::kWarning || m_notice.kind == NoticeKind::kError;
    if (notice.kind != NoticeKind::kDone || !isWarned) {
        put(notice);
    }
}

void StatusLine::put(const Notice& notice) {
    m_notice = notice;
    const bool isEmpty = notice.kind == NoticeKind::kNone;
    m_text->setText(isEmpty ? tr("Ready.") : notice.text);
    m_text->setAccessibleName(m_text->text());
    m_icon->setVisible(!isEmpty);
    m_dismiss->setVisible(!isEmpty && notice.kind != NoticeKind::kBusy);
    setProperty("level", isEmpty ? "none" : lookOf(notice.kind).level);
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_text)}) {
        part->style()->unpolish(part);
        part->style()->polish(part);
    }
    paintIcon();
    QAccessibleEvent event(m_text, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void StatusLine::paintIcon() {
    m_icon->setIcon(lookOf(m_notice.kind).icon, noticeColor(m_notice.kind, palette()));
}

void StatusLine::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        paintIcon();
    }
}

} // namespace xbr::host
