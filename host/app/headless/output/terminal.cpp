#include "host/app/headless/output/terminal.h"

#include "host/app/publishing/upload/progresswords.h"
#include "host/app/publishing/verdict/words.h"

#include <QChar>
#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace xbr::host {

namespace {

struct LineTexts {
    Q_DECLARE_TR_FUNCTIONS(LineTexts)
};

constexpr std::size_t kUsualColumns = 80;
constexpr std::size_t kBarColumns = 20;
constexpr std::size_t kTitleColumns = 24; ///< of a long title, where there is room
constexpr std::size_t kShortTitle = 8;

/// East Asian characters and pictures take two columns (Unicode, Annex 11). The system's own table is that of
/// the locale, which may not be installed.
constexpr std::pair<char32_t, char32_t> kWide[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

std::size_t widthOf(char32_t character) {
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing ||
        category == QChar::Other_Format) {
        return 0;
    }
    const bool isWide = std::any_of(std::begin(kWide), std::end(kWide), [character](const auto& range) {
        return character >= range.first && character <= range.second;
    });
    return isWide ? 2 : 1;
}

/// Whether the terminal shows more than ASCII: a locale that is not installed names the encoding still.
bool isUtf8Locale() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nobody sets variables
        if (value && *value) {
            const QString name = QString(value).toUpper();
            return name.contains("UTF-8") || name.contains("UTF8");
        }
    }
    return false;
}

/// What the line holds, the most dispensable part last.
enum Part { kPercent, kTime, kTitle, kFullTitle, kBytes, kSpeed, kTimeForAll, kBar, kParts };

std::string barOf(int percent) {
    const auto full = static_cast<std::size_t>(percent) * kBarColumns / 100;
    return "[" + std::string(full, '#') + std::string(kBarColumns - full, '.') + "]";
}

std::string timeOf(const UploadProgress& progress, bool isForAll) {
    if (progress.isStuck()) {
        return say(LineTexts::tr("no bytes for %1"), wordsOfSeconds(progress.quietSeconds));
    }
    if (progress.isSent()) {
        return say(LineTexts::tr("waiting for the answer"));
    }
    if (progress.song.secondsLeft < 0) {
        return {};
    }
    const std::string song = wordsOfSeconds(progress.song.secondsLeft);
    return isForAll && progress.all.secondsLeft >= 0 && progress.songs > 1
               ? say(LineTexts::tr("%1 left, all %2"), song, wordsOfSeconds(progress.all.secondsLeft))
               : say(LineTexts::tr("%1 left"), song);
}

/// The line with the first so many parts.
std::string lineWith(const UploadProgress& progress, int parts) {
    const auto [sent, size] = wordsOfSizes(progress.song.bytes, progress.song.total);
    const std::string title = fitted(progress.label, parts > kFullTitle ? kTitleColumns : kShortTitle);
    std::string line = title; // an album is one upload
    if (!progress.isAlbum) {
        line = std::to_string(progress.index + 1) + "/" + std::to_string(progress.songs);
        line += parts > kTitle ? " " + title : "";
    }
    if (parts > kBar) {
        line += "  " + barOf(progress.song.percent());
    }
    line += "  " + std::to_string(progress.song.percent()) + " %";
    if (parts > kBytes) {
        line += "  " + sent + "/" + size;
    }
    if (parts > kSpeed && progress.bytesPerSecond >= 0) {
        line += "  " + wordsOfSize(progress.bytesPerSecond) + "/s";
    }
    const std::string time = timeOf(progress, parts > kTimeForAll);
    return parts > kTime && !time.empty() ? line + "  " + time : line;
}

} // namespace

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    for (const char32_t character :
         QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdU32String()) {
        columns += widthOf(character);
    }
    return columns;
}

std::string fitted(std::string_view text, std::size_t columns) {
    if (columnsOf(text) <= columns) {
        return std::string(text);
    }
    std::u32string shown;
    std::size_t taken = 1; // "…"
    for (const char32_t character :
         QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdU32String()) {
        taken += widthOf(character);
        if (taken > columns) {
            break;
        }
        shown += character;
    }
    return columns == 0 ? "" : QString::fromStdU32String(shown + U'…').toStdString();
}

std::string movingLine(const UploadProgress& progress, std::size_t columns) {
    int parts = kParts;
    std::string line = lineWith(progress, parts);
    while (columnsOf(line) > columns && parts > 1) {
        line = lineWith(progress, --parts);
    }
    return fitted(line, columns);
}

std::string forTerminal(std::string text) {
    if (isUtf8Locale()) {
        return text;
    }
    for (const std::string_view quote : {"“", "”", "„", "«\u00a0", "\u00a0»", "« ", " »", "«", "»"}) {
        for (auto at = text.find(quote); at != std::string::npos; at = text.find(quote)) {
            text.replace(at, quote.size(), "\"");
        }
    }
    return text;
}

MovingLine::MovingLine(bool isWanted) : m_isTerminal(isWanted && isatty(STDERR_FILENO) == 1) {}

std::size_t MovingLine::columns() const {
    winsize size{};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : kUsualColumns;
}

void MovingLine::show(const std::string& text) {
    if (m_isTerminal) {
        const std::string shown = fitted(text, columns());
        // In the last column the terminal waits to begin a new line: erasing there would take the last
        // character.
        std::cerr << '\r' << forTerminal(shown) << (columnsOf(shown) < columns() ? "\x1b[K" : "")
                  << std::flush;
        m_isDirty = true;
    }
}

void MovingLine::clear() {
    if (m_isDirty) {
        std::cerr << "\r\x1b[K" << std::flush;
        m_isDirty = false;
    }
}

} // namespace xbr::host
