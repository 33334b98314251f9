#pragma once

#include "framework/abi/text.h"

#include <QString>

#include <string_view>

namespace xbr::host {

/// UTF-8 as Qt's text; what is malformed becomes U+FFFD.
inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString toQString(Text text) {
    return QString::fromUtf8(text.data, static_cast<qsizetype>(text.length));
}

} // namespace xbr::host
