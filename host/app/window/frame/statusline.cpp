#include "host/app/window/frame/statusline.h"

#include "host/app/window/frame/progressrow.h"
#include "host/app/window/look/icon.h"
#include "host/app/window/look/tints.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace xbr::host {

namespace {

constexpr int kNoticeIconSize = 18;
constexpr int kNarrowBar = 560; ///< points; below that the buttons go under the text

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
    case NoticeKind::kInfo:
        return {"info", "info"};
    case NoticeKind::kNone:
        break;
    }
    return {"info", "none"};
}

bool isGrave(const Notice& notice) {
    return notice.kind == NoticeKind::kWarning || notice.kind == NoticeKind::kError;
}

QLabel* makeText(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QToolButton* makeTool(const char* name, const QString& text, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(text);
    button->setAccessibleName(text);
    return button;
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QFrame(parent),
      m_icon(new IconLabel("info", kNoticeIconSize, this)),
      m_text(makeText("statusText", this)),
      m_lines(makeText("statusLines", this)),
      m_unfold(makeTool("unfold", tr("Show each song"), this)),
      m_steps(new QWidget(this)),
      m_dismiss(makeTool("dismiss", tr("Dismiss"), this)),
      m_progress(new ProgressRow(this)),
      m_row(new QHBoxLayout) {
    setObjectName("statusLine");
    setAccessibleName(tr("Status"));
    m_dismiss->setIcon(symbolIcon("close", IconColor::kQuiet));
    m_unfold->setCheckable(true);
    m_unfold->setArrowType(Qt::DownArrow);
    auto* steps = new QHBoxLayout(m_steps);
    steps->setContentsMargins(0, 0, 0, 0);
    connect(m_dismiss, &QToolButton::clicked, this, [this] {
        m_standing = {};
        refresh();
    });
    connect(m_unfold, &QToolButton::toggled, m_lines, &QLabel::setVisible);
    connect(m_progress, &ProgressRow::stopAsked, this, &StatusLine::stopAsked);

    m_row->setSpacing(10);
    m_row->addWidget(m_text, 1);
    m_row->addWidget(m_steps, 0, Qt::AlignRight);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addLayout(m_row);
    texts->addWidget(m_lines);
    texts->addWidget(m_progress);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 10, 8);
    layout->setSpacing(10);
    layout->addWidget(m_icon);
    layout->addLayout(texts, 1);
    layout->addWidget(m_unfold);
    layout->addWidget(m_dismiss);
    m_progress->hide();
    refresh();
}

void StatusLine::showNotice(const Notice& notice) {
    if (notice.kind == NoticeKind::kBusy) {
        m_busy = notice;
    } else {
        m_busy = {};
        if (notice.kind != NoticeKind::kDone || !isGrave(m_standing)) {
            m_standing = notice;
        }
    }
    m_progress->hide();
    refresh();
    announce();
}

void StatusLine::showProgress(const UploadProgress& progress) {
    const bool isNew = m_progress->isHidden();
    m_progress->show(progress);
    m_busy = {NoticeKind::kBusy, m_progress->text(), {}, {}};
    if (isNew) {
        m_progress->setVisible(true);
        refresh();
    }
}

void StatusLine::clear() {
    m_standing = {};
    refresh();
}

void StatusLine::refresh() {
    const Notice& shown = notice();
    const bool isEmpty = shown.kind == NoticeKind::kNone;
    const bool isSending = !m_progress->isHidden();
    m_text->setText(isEmpty ? tr("Ready.") : shown.text);
    m_text->setAccessibleName(m_text->text());
    m_text->setVisible(!isSending);
    m_lines->setText(shown.lines.join('\n'));
    m_lines->hide();
    m_unfold->setChecked(false);
    m_unfold->setVisible(!shown.lines.isEmpty());
    m_icon->setVisible(!isEmpty);
    m_dismiss->setVisible(!isEmpty && shown.kind != NoticeKind::kBusy);
    showSteps();
    setLevel(lookOf(shown.kind).level);
    paintIcon();
}

void StatusLine::showSteps() {
    qDeleteAll(m_steps->findChildren<QPushButton*>(Qt::FindDirectChildrenOnly));
    for (const NoticeStep& step : notice().steps) {
        auto* button = new QPushButton(step.text, m_steps);
        button->setObjectName(step.name);
        button->setAutoDefault(false);
        m_steps->layout()->addWidget(button);
        // Later: what it does may show another notice, and take this button away.
        connect(
            button, &QPushButton::clicked, this, [act = step.act] { act(); }, Qt::QueuedConnection);
    }
    m_steps->setVisible(!notice().steps.empty());
}

void StatusLine::setLevel(const char* level) {
    if (property("level") == QVariant(level)) {
        return;
    }
    setProperty("level", level);
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_text)}) {
        part->style()->unpolish(part);
        part->style()->polish(part);
    }
}

void StatusLine::announce() {
    const bool isAlert = notice().kind == NoticeKind::kError;
    QAccessibleEvent event(m_text, isAlert ? QAccessible::Alert : QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void StatusLine::paintIcon() {
    m_icon->setIcon(lookOf(notice().kind).icon, noticeColor(notice().kind, palette()));
}

void StatusLine::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        paintIcon();
    }
}

void StatusLine::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_dismiss->isVisible()) {
        m_dismiss->click();
    } else {
        QFrame::keyPressEvent(event);
    }
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    m_row->setDirection(width() < kNarrowBar ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

} // namespace xbr::host
