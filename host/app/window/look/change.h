#pragma once

#include <QString>

#include <functional>

namespace xbr::host {

/// Something that the user did, in words, with the way back and forth.
struct Change {
    QString text;
    std::function<void()> undo;
    std::function<void()> redo;
    int series = -1; ///< what has the same one goes on from the last
};

} // namespace xbr::host
