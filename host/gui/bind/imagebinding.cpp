#include "framework/abi/graphics.h"
#include "framework/support/parts/path.h"
#include "host/base/listener.h"
#include "host/gui/bind/bindings.h"
#include "host/gui/picture/image.h"
#include "host/gui/picture/svgimage.h"

#include <QAbstractButton>
#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace xbr::host {

namespace {

/// Tells an image source that it is shown for as long as this lives.
class Showing {
public:
    explicit Showing(IImageSource& source) : m_image(query<IShownImage>(&source)) {
        if (m_image) {
            m_image->beginShowing();
        }
    }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;
    ~Showing() {
        if (m_image) {
            m_image->endShowing();
        }
    }

    bool mayHaveImage() const { return m_image && m_image->mayHaveImage(); }

private:
    Ref<IShownImage> m_image;
};

/// Paints the picture of an image source over a label's area: as a whole, never larger than it is, with every
/// pixel that the screen has. The label is there while there is a picture, or may be one.
class SourcePicture final : public QObject {
public:
    SourcePicture(QLabel& label, Ref<IImageSource> source)
        : QObject(&label),
          m_label(&label),
          m_source(std::move(source)),
          m_showing(*m_source),
          m_listener([this](ISubject*, const IMessage&) { refresh(); }) {
        label.installEventFilter(this);
        m_listener.listen(query<ISubject>(m_source.get()));
        refresh();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || m_pixels.isNull()) {
            return QObject::eventFilter(watched, event);
        }
        paint();
        return true;
    }

private:
    void refresh() {
        Ref<IImage> image;
        const bool isThere = m_source->getImage(image.out()) == kOk && image;
        m_pixels = isThere ? pixelsOf(*image) : QImage();
        m_own = isThere ? QSizeF(image->width(), image->height()) : QSizeF();
        m_shown = QImage();
        m_label->setVisible(!m_pixels.isNull() || m_showing.mayHaveImage());
        m_label->update();
    }

    /// In points.
    QSizeF size() const {
        const QSizeF area = m_label->contentsRect().size();
        const bool fits = m_own.width() <= area.width() && m_own.height() <= area.height();
        return fits ? m_own : m_own.scaled(area, Qt::KeepAspectRatio);
    }

    void paint() {
        static constexpr double kCorner = 4.0;
        const double ratio = m_label->devicePixelRatioF();
        const QSize points = size().toSize().expandedTo(QSize(1, 1));
        const QSize pixels = (QSizeF(points) * ratio).toSize();
        if (m_shown.size() != pixels) {
            m_shown = m_pixels.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        const QRect place = QStyle::alignedRect(m_label->layoutDirection(), m_label->alignment(), points,
                                                m_label->contentsRect());
        QBrush brush(m_shown);
        brush.setTransform(QTransform::fromTranslate(place.x(), place.y()).scale(1.0 / ratio, 1.0 / ratio));
        QPainter painter(m_label);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(brush);
        painter.drawRoundedRect(place, kCorner, kCorner);
    }

    QLabel* m_label;
    Ref<IImageSource> m_source;
    Showing m_showing; ///< what it signals at its end is not heard any more
    Listener m_listener;
    QImage m_pixels;
    QSizeF m_own;   ///< of the picture, in points
    QImage m_shown; ///< in the size of the moment; null when it has to be made
};

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

bool bindImage(QWidget& widget, IController& scope, const std::string& path) {
    auto* label = qobject_cast<QLabel*>(&widget);
    auto source = findObject<IImageSource>(scope, path);
    if (!label || !source) {
        return false;
    }
    new SourcePicture(*label, std::move(source));
    return true;
}

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
