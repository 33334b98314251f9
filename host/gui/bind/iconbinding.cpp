#include "host/gui/bind/bindings.h"
#include "host/gui/picture/svgimage.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace xbr::host {

namespace {

/// Paints a picture over a label's area: sharp at every scale, and in the palette's colours of the moment.
class LabelPicture final : public QObject {
public:
    LabelPicture(QLabel& label, const std::string& svg)
        : QObject(&label),
          m_label(&label),
          m_icon(skinIcon(svg, label)) {
        label.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint) {
            return QObject::eventFilter(watched, event);
        }
        QPainter painter(m_label);
        m_icon.paint(&painter, m_label->contentsRect(), m_label->alignment(),
                     m_label->isEnabled() ? QIcon::Normal : QIcon::Disabled);
        return true;
    }

private:
    QLabel* m_label;
    QIcon m_icon;
};

} // namespace

bool bindIcon(QWidget& widget, const Skin& skin, const std::string& file) {
    const auto image = skin.images.find(file);
    if (image == skin.images.end()) {
        return false;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setIcon(skinIcon(image->second, *button));
        return true;
    }
    auto* label = qobject_cast<QLabel*>(&widget);
    if (label) {
        new LabelPicture(*label, image->second);
    }
    return label != nullptr;
}

} // namespace xbr::host
