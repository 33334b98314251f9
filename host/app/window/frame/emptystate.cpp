#include "host/app/window/frame/emptystate.h"

#include "host/app/window/look/icon.h"
#include "host/app/window/look/tints.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace xbr::host {

namespace {

constexpr int kPictureSize = 56;

QLabel* addLine(QVBoxLayout& layout, const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout.addWidget(label);
    return label;
}

} // namespace

EmptyState::EmptyState(QWidget* parent) : QFrame(parent), m_button(new QPushButton(tr("&Add Songs…"), this)) {
    setObjectName("emptyState");
    m_button->setObjectName("addFirst");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(8);
    layout->addStretch(3);
    auto* picture = new IconLabel("waveform", kPictureSize, this);
    layout->addWidget(picture, 0, Qt::AlignHCenter);
    layout->addSpacing(8);
    addLine(*layout, "emptyTitle", tr("Drop your finished songs here"))
        ->setFont(scaledFont(1.25, QFont::DemiBold));
    addLine(*layout, "emptyText", tr("WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder"));
    layout->addSpacing(12);
    layout->addWidget(m_button, 0, Qt::AlignHCenter);
    layout->addStretch(4);
}

} // namespace xbr::host
