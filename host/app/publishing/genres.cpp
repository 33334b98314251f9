#include "host/app/publishing/genres.h"

#include "host/base/nearness.h"

#include <taglib/id3v1genres.h>

#include <algorithm>
#include <charconv>

namespace xbr::host {

namespace {

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

} // namespace

std::optional<std::string> Genres::find(std::string_view genre) const {
    const std::string wanted = foldedText(genre);
    const auto found = std::find_if(m_names.begin(), m_names.end(),
                                    [&](const std::string& name) { return foldedText(name) == wanted; });
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
    return nearestTo(genre, m_names);
}

std::vector<std::string> Genres::like(std::string_view word) const {
    return namesLike(word, m_names);
}

} // namespace xbr::host
