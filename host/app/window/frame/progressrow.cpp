#include "host/app/window/frame/progressrow.h"

#include "host/app/publishing/upload/progresswords.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStringList>

namespace xbr::host {

namespace {

constexpr int kBarSteps = 1000;
constexpr int kWide = 560;   ///< points; below that some things have no room
constexpr int kNarrow = 430; ///< and below that some more

QLabel* makeLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QString joined(const std::vector<std::string>& parts) {
    QStringList shown;
    for (const std::string& part : parts) {
        if (!part.empty()) {
            shown.append(QString::fromStdString(part));
        }
    }
    return shown.join(QString::fromUtf8(" · "));
}

} // namespace

ProgressRow::ProgressRow(QWidget* parent)
    : QWidget(parent),
      m_headline(makeLabel("sending", this)),
      m_bar(new QProgressBar(this)),
      m_percent(makeLabel("percent", this)),
      m_stop(new QPushButton(tr("&Stop"), this)),
      m_details(makeLabel("sendingDetails", this)),
      m_all(makeLabel("sendingAll", this)) {
    m_headline->setWordWrap(true);
    m_bar->setObjectName("sendingBar");
    m_bar->setRange(0, kBarSteps);
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Progress"));
    m_percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_percent->setMinimumWidth(m_percent->fontMetrics().horizontalAdvance("100 %"));
    m_stop->setObjectName("stop");
    m_stop->setToolTip(tr("End the upload; what has arrived stays published"));
    m_all->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_stop, &QPushButton::clicked, this, &ProgressRow::stopAsked);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(10);
    layout->setVerticalSpacing(2);
    layout->setColumnStretch(0, 1);
    layout->addWidget(m_headline, 0, 0);
    layout->addWidget(m_bar, 0, 1);
    layout->addWidget(m_percent, 0, 2);
    layout->addWidget(m_stop, 0, 3, 2, 1);
    layout->addWidget(m_details, 1, 0);
    layout->addWidget(m_all, 1, 1, 1, 2);
}

QString ProgressRow::text() const {
    return m_headline->text();
}

void ProgressRow::show(const UploadProgress& progress) {
    m_progress = progress;
    const QString headline = QString::fromStdString(wordsOf(progress).headline);
    if (m_headline->text() != headline) {
        m_headline->setText(headline);
        m_bar->setAccessibleName(headline);
    }
    m_bar->setValue(progress.song.total > 0
                        ? static_cast<int>(progress.song.bytes * kBarSteps / progress.song.total)
                        : 0);
    m_percent->setText(tr("%1 %").arg(progress.song.percent()));
    showDetails();
}

/// Where there is no room speed goes first, then the bytes.
void ProgressRow::showDetails() {
    const ProgressWords words = wordsOf(m_progress);
    const bool isWide = width() >= kWide;
    m_details->setText(joined({width() >= kNarrow ? words.bytes : std::string(),
                               isWide ? words.speed : std::string(), words.left}));
    m_all->setVisible(isWide);
    m_all->setText(QString::fromStdString(words.all));
}

void ProgressRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    showDetails();
}

} // namespace xbr::host
