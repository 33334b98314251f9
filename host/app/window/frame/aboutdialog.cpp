#include "host/app/window/frame/aboutdialog.h"

#include "host/app/window/look/tints.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace xbr::host {

namespace {

constexpr int kLogoSize = 64;

QLabel* makeLabel(const QString& text, const char* name, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

std::vector<VersionLine> allLines(const std::vector<VersionLine>& modules) {
    std::vector<VersionLine> lines{{"xbrhost", XBR_HOST_VERSION}};
    lines.insert(lines.end(), modules.begin(), modules.end());
    const std::vector<VersionLine> libraries{{"Qt", qVersion()},
                                             {"libcurl", XBR_CURL_VERSION},
                                             {"libzip", XBR_ZIP_VERSION},
                                             {"ISA-L", XBR_ISAL_VERSION},
                                             {"libsecret", XBR_SECRET_VERSION},
                                             {"TagLib", XBR_TAGLIB_VERSION},
                                             {"libsndfile", XBR_SNDFILE_VERSION}};
    lines.insert(lines.end(), libraries.begin(), libraries.end());
    return lines;
}

} // namespace

AboutDialog::AboutDialog(const std::vector<VersionLine>& modules, QWidget* parent)
    : QDialog(parent),
      m_lines(allLines(modules)) {
    setWindowTitle(tr("About xbrhost"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 20);
    layout->setSpacing(6);
    auto* picture = new QLabel(this);
    picture->setPixmap(
        QIcon(":/xbrhost/icons/app.svg").pixmap(QSize(kLogoSize, kLogoSize), devicePixelRatioF()));
    layout->addWidget(picture);
    auto* title = makeLabel("xbrhost", "aboutTitle", this);
    title->setFont(scaledFont(1.5, QFont::DemiBold));
    layout->addWidget(title);
    layout->addWidget(
        makeLabel(tr("Publishes finished songs through the modules of a workstation."), "aboutQuiet", this));
    layout->addSpacing(12);

    auto* table = new QGridLayout;
    table->setHorizontalSpacing(24);
    table->setColumnStretch(1, 1);
    for (const VersionLine& line : m_lines) {
        const int row = table->rowCount();
        table->addWidget(makeLabel(line.name, "aboutQuiet", this), row, 0);
        auto* version = makeLabel(line.version, "aboutVersion", this);
        version->setAccessibleName(line.name + " " + line.version);
        table->addWidget(version, row, 1);
    }
    layout->addLayout(table);
    layout->addSpacing(14);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setText(tr("&Close"));
    auto* copying = buttons->addButton(tr("Co&py"), QDialogButtonBox::ActionRole);
    copying->setAccessibleName(tr("Copy the versions"));
    connect(copying, &QPushButton::clicked, this, &AboutDialog::copyVersions);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void AboutDialog::copyVersions() const {
    QString text;
    for (const VersionLine& line : m_lines) {
        text += line.name + " " + line.version + "\n";
    }
    QApplication::clipboard()->setText(text);
}

} // namespace xbr::host
