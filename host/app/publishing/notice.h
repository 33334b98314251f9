#pragma once

#include <QMetaType>
#include <QString>

namespace xbr::host {

enum class NoticeKind { kNone, kInfo, kBusy, kDone, kWarning, kError };

/// One line that the user should read.
struct Notice {
    NoticeKind kind = NoticeKind::kNone;
    QString text;

    bool operator==(const Notice&) const = default;
};

} // namespace xbr::host

Q_DECLARE_METATYPE(xbr::host::Notice)
