#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

#include <QList>
#include <QString>

xbr::Result XBRFoldCase(xbr::Text text, xbr::IString** out) noexcept {
    // By code point: QChar folds simply, one code point to one; what QString does to a whole text may change.
    auto codePoints = QString::fromUtf8(text.data, static_cast<qsizetype>(text.length)).toUcs4();
    for (auto& codePoint : codePoints) {
        codePoint = QChar::toCaseFolded(codePoint);
    }
    const auto* folded = reinterpret_cast<const char32_t*>(codePoints.constData());
    return xbr::giveText(QString::fromUcs4(folded, codePoints.size()).toStdString(), out);
}
