#include "host/base/nearness.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::size_t kMost = 4;

QString folded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).simplified().toCaseFolded();
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

constexpr int kLikeness = 4; // degrees

/// How like a name is to a word: it is the name, its beginning, that of one of its words, or anywhere in it.
int likeness(const std::string& word, const std::string& name) {
    const auto at = name.find(word);
    if (at == 0) {
        return word.size() == name.size() ? 0 : 1;
    }
    if (at == std::string::npos) {
        return kLikeness;
    }
    return (" " + name).find(" " + word) != std::string::npos ? 2 : 3;
}

} // namespace

std::vector<std::string> nearestTo(std::string_view typed, const std::vector<std::string>& names) {
    const QString wanted = folded(typed);
    std::vector<std::pair<std::size_t, std::string>> candidates;
    for (const std::string& name : names) {
        if (const auto found = difference(wanted, folded(name))) {
            candidates.emplace_back(*found, name);
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::string> nearest;
    for (std::size_t i = 0; i < std::min(candidates.size(), kMost); ++i) {
        nearest.push_back(candidates[i].second);
    }
    return nearest;
}

std::string foldedText(std::string_view text) {
    return folded(text).toStdString();
}

std::vector<std::string> namesLike(std::string_view word, const std::vector<std::string>& names) {
    const std::string wanted = foldedText(word);
    std::vector<std::string> ranked[kLikeness];
    for (const std::string& name : names) {
        if (const int rank = likeness(wanted, foldedText(name)); rank < kLikeness) {
            ranked[rank].push_back(name);
        }
    }
    std::vector<std::string> found;
    for (const auto& group : ranked) {
        found.insert(found.end(), group.begin(), group.end());
    }
    return found;
}

} // namespace xbr::host
