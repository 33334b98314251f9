#include "host/app/publishing/genrelist.h"

#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"

#include <QString>

#include <algorithm>
#include <numeric>
#include <sstream>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::string_view kGenreParameter = "TrackList/TrackProperties/primaryGenre";
constexpr std::size_t kMaximumSuggestions = 4;

std::string folded(std::string_view text) {
    Ref<IString> result;
    XBRFoldCase(toText(text), result.out());
    return take(result);
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

std::u32string characters(const std::string& text) {
    return QString::fromStdString(text).toStdU32String();
}

bool isPartOf(const std::string& part, const std::string& whole) {
    static constexpr std::size_t kShortest = 3; // letters that tell something
    return part.size() >= kShortest && whole.find(part) != std::string::npos;
}

/// How far the nearest word of a name is from what was typed.
std::size_t wordDistance(const std::u32string& typed, const std::string& name) {
    std::size_t nearest = typed.size();
    std::istringstream words(name);
    for (std::string word; words >> word;) {
        nearest = std::min(nearest, distance(typed, characters(word)));
    }
    return nearest;
}

/// How far a name is from what was typed: 0 when one holds the other, nothing when they have little in
/// common.
std::optional<std::size_t> farness(const std::string& typed, const std::string& name) {
    if (isPartOf(typed, name) || isPartOf(name, typed)) {
        return 0;
    }
    const std::u32string letters = characters(typed);
    const std::size_t far = std::min(distance(letters, characters(name)), wordDistance(letters, name) + 1);
    return far <= (letters.size() + 2) / 3 ? std::optional(far) : std::nullopt; // every third may be wrong
}

} // namespace

GenreList GenreList::read(GadgetPanel& panel) {
    std::vector<std::string> names;
    const IParameter* parameter = findParameter(panel.controller(), kGenreParameter);
    // The first choice stands for no genre.
    for (std::int32_t i = 1; parameter && i < parameter->countChoices(); ++i) {
        names.push_back(toString(parameter->choiceAt(i)));
    }
    return GenreList(std::move(names));
}

std::optional<std::string> GenreList::find(const std::string& genre) const {
    const std::string wanted = folded(trim(genre));
    const auto found = std::find_if(m_names.begin(), m_names.end(),
                                    [&](const std::string& name) { return folded(name) == wanted; });
    return found == m_names.end() ? std::nullopt : std::optional(*found);
}

std::vector<std::string> GenreList::near(const std::string& genre) const {
    const std::string wanted = folded(trim(genre));
    std::vector<std::pair<std::size_t, std::string>> candidates;
    for (const std::string& name : m_names) {
        if (const auto far = farness(wanted, folded(name))) {
            candidates.emplace_back(*far, name);
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::string> names;
    for (const auto& [far, name] : candidates) {
        if (names.size() < kMaximumSuggestions) {
            names.push_back(name);
        }
    }
    return names;
}

std::string GenreList::describeUnknown(const std::string& genre) const {
    std::string text = "there is no genre '" + genre + "'";
    const auto names = near(genre);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const char* before = i == 0 ? "; did you mean '" : (i + 1 == names.size() ? "' or '" : "', '");
        text += before + names[i];
    }
    return names.empty() ? text : text + "'?";
}

} // namespace xbr::host
