#include "host/app/publishing/genres.h"

#include <QString>
#include <QStringList>
#include <taglib/id3v1genres.h>

#include <algorithm>
#include <charconv>
#include <numeric>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::size_t kMostSuggestions = 4;

QString folded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).simplified().toCaseFolded();
}

/// The number of a text that is nothing else; -1 for any other.
int numberOf(std::string_view text) {
    int number = -1;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failed == std::errc() && end == text.data() + text.size() ? number : -1;
}

/// What the number of an old tag stands for; empty when it is none.
std::string nameOfNumber(int number) {
    return number < 0 ? std::string() : TagLib::ID3v1::genre(number).to8Bit(true);
}

/// How many characters have to be changed, added or taken away to make one text of the other (Levenshtein).
std::size_t distance(const std::u32string& left, const std::u32string& right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t changed = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

bool isPartOf(const QString& part, const QString& whole) {
    static constexpr qsizetype kShortest = 3; // letters that tell something
    return part.size() >= kShortest && whole.contains(part);
}

/// The distance of the nearest word of a name to what was typed.
std::size_t wordDistance(const std::u32string& typed, const QString& name) {
    std::size_t nearest = typed.size();
    for (const QString& word : name.split(' ')) {
        nearest = std::min(nearest, distance(typed, word.toStdU32String()));
    }
    return nearest;
}

/// How unlike a name is to what was typed: 0 when one holds the other, nothing when they have little in
/// common.
std::optional<std::size_t> difference(const QString& typed, const QString& name) {
    if (isPartOf(typed, name) || isPartOf(name, typed)) {
        return 0;
    }
    const std::u32string letters = typed.toStdU32String();
    const std::size_t found =
        std::min(distance(letters, name.toStdU32String()), wordDistance(letters, name) + 1);
    return found <= (letters.size() + 2) / 3 ? std::optional(found)
                                             : std::nullopt; // every third may be wrong
}

} // namespace

std::optional<std::string> Genres::find(std::string_view genre) const {
    const QString wanted = folded(genre);
    const auto found = std::find_if(m_names.begin(), m_names.end(),
                                    [&](const std::string& name) { return folded(name) == wanted; });
    return found == m_names.end() ? std::nullopt : std::optional(*found);
}

std::optional<std::string> Genres::match(std::string_view genre) const {
    if (auto found = find(genre)) {
        return found;
    }
    const auto close = genre.starts_with('(') ? genre.find(')') : std::string_view::npos;
    if (close == std::string_view::npos) {
        return find(nameOfNumber(numberOf(genre)));
    }
    // Behind the number stands its own word for it, which is the better one.
    if (auto refined = find(genre.substr(close + 1))) {
        return refined;
    }
    return find(nameOfNumber(numberOf(genre.substr(1, close - 1))));
}

std::vector<std::string> Genres::near(std::string_view genre) const {
    const QString wanted = folded(genre);
    std::vector<std::pair<std::size_t, std::string>> candidates;
    for (const std::string& name : m_names) {
        if (const auto found = difference(wanted, folded(name))) {
            candidates.emplace_back(*found, name);
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::string> names;
    for (const auto& [found, name] : candidates) {
        if (names.size() < kMostSuggestions) {
            names.push_back(name);
        }
    }
    return names;
}

} // namespace xbr::host
