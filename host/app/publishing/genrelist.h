#pragma once

#include "host/app/modules/gadgetpanel.h"

#include <optional>
#include <string>
#include <vector>

namespace xbr::host {

/// The genres that a panel offers in its track editor.
class GenreList {
public:
    /// Reads the choices of the parameter "primaryGenre"; no list when the panel has none.
    static GenreList read(GadgetPanel& panel);

    explicit GenreList(std::vector<std::string> names) : m_names(std::move(names)) {}

    /// Without a list every genre is as good as another.
    bool isEmpty() const { return m_names.empty(); }

    /// The genre as the list spells it; nothing when it has none of that name. Case does not matter.
    std::optional<std::string> find(const std::string& genre) const;

    /// Names that a user may have meant, the nearest first; at most four.
    std::vector<std::string> near(const std::string& genre) const;

    /// "there is no genre 'X'; did you mean 'Y' or 'Z'?"
    std::string describeUnknown(const std::string& genre) const;

private:
    std::vector<std::string> m_names; ///< without the choice for no genre
};

} // namespace xbr::host
