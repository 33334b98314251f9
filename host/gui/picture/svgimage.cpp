#include "host/gui/picture/svgimage.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <QWidget>

namespace xbr::host {

namespace {

class SkinIconEngine final : public QIconEngine {
public:
    SkinIconEngine(std::string svg, const QWidget& widget) : m_svg(std::move(svg)), m_widget(&widget) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = m_widget->palette().color(group, m_widget->foregroundRole());
        QSvgRenderer renderer(colouredImage(m_svg, colour));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(painter, QRectF(rect));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SkinIconEngine(m_svg, *m_widget); }

private:
    std::string m_svg;
    const QWidget* m_widget;
};

} // namespace

QByteArray colouredImage(const std::string& svg, const QColor& colour) {
    return QByteArray::fromStdString(svg).replace("currentColor", colour.name(QColor::HexRgb).toLatin1());
}

QIcon skinIcon(const std::string& svg, const QWidget& widget) {
    return QIcon(new SkinIconEngine(svg, widget));
}

} // namespace xbr::host
