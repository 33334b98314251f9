#pragma once

#include "host/app/publishing/verdict/notice.h"

#include <QMetaType>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace xbr::host {

/// A button of a notice.
struct NoticeStep {
    QString name; ///< of the button, for tests and style sheets
    QString text;
    std::function<void()> act;
};

/// What the user should read, and what can be done about it.
struct Notice {
    NoticeKind kind = NoticeKind::kNone;
    QString text;
    std::vector<NoticeStep> steps{}; ///< the most useful last
    QStringList lines{};             ///< one for each song that is concerned; shown on demand
};

} // namespace xbr::host

Q_DECLARE_METATYPE(xbr::host::Notice)
