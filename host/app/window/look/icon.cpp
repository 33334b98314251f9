#include "host/app/window/look/icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace xbr::host {

namespace {

/// Symbols are drawn with "currentColor", which stands for the text around them.
void drawSymbol(QPainter& painter, const QString& name, const QRectF& place, const QColor& color) {
    QFile file(":/xbrhost/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QSvgRenderer renderer(file.readAll().replace("currentColor", color.name().toLatin1()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * static_cast<qreal>(color.alphaF()));
    renderer.render(&painter, place);
}

class SymbolEngine final : public QIconEngine {
public:
    SymbolEngine(QString name, IconColor color) : m_name(std::move(name)), m_color(color) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        drawSymbol(*painter, m_name, place, colorFor(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SymbolEngine(m_name, m_color); }

private:
    QColor colorFor(QIcon::Mode mode) const {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled) {
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        }
        switch (m_color) {
        case IconColor::kOnAccent:
            return palette.color(QPalette::HighlightedText);
        case IconColor::kQuiet:
            return palette.color(QPalette::PlaceholderText);
        case IconColor::kText:
            break;
        }
        return palette.color(mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
    }

    QString m_name;
    IconColor m_color;
};

} // namespace

QIcon symbolIcon(const QString& name, IconColor color) {
    return QIcon(new SymbolEngine(name, color));
}

IconLabel::IconLabel(const QString& name, int size, QWidget* parent) : QWidget(parent), m_name(name) {
    setFixedSize(size, size);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void IconLabel::setIcon(const QString& name, const QColor& color) {
    m_name = name;
    m_color = color;
    update();
}

void IconLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawSymbol(painter, m_name, rect(),
               m_color.isValid() ? m_color : palette().color(QPalette::PlaceholderText));
}

} // namespace xbr::host
