#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// The genres that a service knows.
class Genres {
public:
    Genres() = default;
    explicit Genres(std::vector<std::string> names) : m_names(std::move(names)) {}

    /// Without a list every genre is as good as another.
    bool isEmpty() const { return m_names.empty(); }

    /// The genre as the list spells it; nothing when it has none of that name. Case does not matter; the
    /// numbers of old tags ("32", "(32)", "(32)Classical"; ID3v2.3, 4.2.1) stand for their names.
    std::optional<std::string> match(std::string_view genre) const;

    /// Names that a user may have meant, the nearest first; at most four.
    std::vector<std::string> near(std::string_view genre) const;

    /// The names that a word finds: the name itself, names that begin with it, those of which a word does,
    /// then those that hold it. All for an empty word.
    std::vector<std::string> like(std::string_view word) const;

private:
    std::optional<std::string> find(std::string_view genre) const;

    std::vector<std::string> m_names; ///< without the choice for no genre
};

} // namespace xbr::host
