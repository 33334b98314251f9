#pragma once

#include "host/app/publishing/upload/progress.h"

#include <string>
#include <string_view>

namespace xbr::host {

/// How many columns of a terminal a text takes: wide characters count two.
std::size_t columnsOf(std::string_view text);

/// A text in so many columns at most, with "…" where something is left out.
std::string fitted(std::string_view text, std::size_t columns);

/// How far an upload is, in so many columns at most. What can be missed leaves as they get fewer; the number
/// of the song and the percent stay.
std::string movingLine(const UploadProgress& progress, std::size_t columns);

/// Typographic quotes become plain ones where the locale is not UTF-8.
std::string forTerminal(std::string text);

/// The line of a terminal that is written over while something moves. Nothing is shown where standard error
/// is no terminal.
class MovingLine {
public:
    /// `isWanted`: false shows nothing.
    explicit MovingLine(bool isWanted);
    MovingLine(const MovingLine&) = delete;
    MovingLine& operator=(const MovingLine&) = delete;
    ~MovingLine() { clear(); }

    bool isShown() const { return m_isTerminal; }
    std::size_t columns() const;
    void show(const std::string& text);
    void clear();

private:
    bool m_isTerminal;
    bool m_isDirty = false;
};

} // namespace xbr::host
