#include "host/app/window/look/tints.h"

#include "host/gui/hostwidgets.h"

#include <QApplication>
#include <QFile>

#include <utility>

namespace xbr::host {

namespace {

QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto part = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {part(first.red(), second.red()), part(first.green(), second.green()),
            part(first.blue(), second.blue())};
}

} // namespace

QColor noticeColor(NoticeKind kind, const QPalette& palette) {
    const bool isDark = appearanceOf(palette) == Appearance::kDark;
    switch (kind) {
    case NoticeKind::kDone:
        return isDark ? QColor(0x6f, 0xcf, 0x97) : QColor(0x1b, 0x7a, 0x43);
    case NoticeKind::kWarning:
        return isDark ? QColor(0xf0, 0xb9, 0x55) : QColor(0x96, 0x5a, 0x00);
    case NoticeKind::kError:
        return isDark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x26, 0x1e);
    default:
        return palette.color(QPalette::Link);
    }
}

QString windowStyle(const QPalette& palette) {
    QFile file(":/xbrhost/style.qss");
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const bool isDark = appearanceOf(palette) == Appearance::kDark;
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const QColor accent = palette.color(QPalette::Highlight);
    const std::pair<const char*, QColor> colors[] = {
        {"@line@", mixed(window, text, 0.14)},
        {"@edge@", mixed(window, text, 0.28)},
        {"@hover@", mixed(window, text, 0.07)},
        {"@pressed@", mixed(window, text, 0.13)},
        {"@accent@", accent},
        {"@accent-hover@", mixed(accent, text, 0.12)},
        {"@accent-soft@", mixed(base, accent, 0.14)},
        {"@on-accent@", palette.color(QPalette::HighlightedText)},
        {"@quiet@", palette.color(QPalette::PlaceholderText)},
        {"@done-soft@", QColor(isDark ? 0x20352aU : 0xe2f3e8U)},
        {"@warning-soft@", QColor(isDark ? 0x3b3220U : 0xfdf0d5U)},
        {"@error-soft@", QColor(isDark ? 0x412a29U : 0xfde7e4U)},
    };
    QString style = QString::fromUtf8(file.readAll());
    for (const auto& [name, color] : colors) {
        style.replace(QString::fromLatin1(name), color.name());
    }
    return style;
}

QFont scaledFont(double factor, QFont::Weight weight) {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

} // namespace xbr::host
