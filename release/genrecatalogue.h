#pragma once

#include "framework/support/parts/parameter.h"

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The genres that the service knows, in its order. Index 0 stands for no genre: its name is empty.
///
/// Filled once per process from the module's resource "brindlex_genres.csv" and read-only afterwards. Without
/// the resource there is entry 0 only.

/// Fills the catalogue; later calls do nothing, also after a failure.
void loadGenres();

/// The names in order, beginning with the empty one. Empty before `loadGenres`.
const std::vector<std::string>& genreNames();

/// How entry `index` is shown to people: its name, "(not set)" for entry 0.
std::string genreTitle(std::size_t index);

/// Sets `parameter` to the index of `text`: the first name equal to it without regard to case, else the first
/// that contains it, else 0.
void getGenreIndex(xbr::Parameter& parameter, std::string_view text);

/// The name at the parameter's value; empty for entry 0.
std::string getGenreText(const xbr::Parameter& parameter);

} // namespace brindlex
