#include "release/genrecatalogue.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr std::string_view kResource = "resource://brindlex/brindlex_genres.csv";

struct Catalogue {
    bool loaded = false;
    std::vector<std::string> names;
    std::vector<std::string> foldedNames;
};

Catalogue& catalogue() {
    static Catalogue instance;
    return instance;
}

std::vector<std::string> readLines() {
    std::vector<std::string> lines;
    xbr::Ref<xbr::IStream> stream;
    xbr::Ref<xbr::ITextStreamer> streamer;
    if (XBRGetFileSystem()->openForReading(xbr::toText(kResource), stream.out()) != xbr::kOk ||
        XBRCreateTextStreamer(stream.get(), streamer.out()) != xbr::kOk) {
        return lines;
    }
    xbr::Ref<xbr::IString> line;
    while (streamer->readLine(line.out()) == xbr::kOk) {
        if (const auto name = xbr::trim(xbr::view(line->text())); !name.empty()) {
            lines.emplace_back(name);
        }
    }
    return lines;
}

template <class Predicate>
std::size_t findIndex(const std::vector<std::string>& names, const Predicate& predicate) {
    return static_cast<std::size_t>(std::find_if(names.begin(), names.end(), predicate) - names.begin());
}

} // namespace

void loadGenres() {
    Catalogue& genres = catalogue();
    if (genres.loaded) {
        return;
    }
    genres.loaded = true;
    genres.names.emplace_back();
    for (std::string& line : readLines()) {
        genres.names.push_back(std::move(line));
    }
    for (const std::string& name : genres.names) {
        genres.foldedNames.push_back(xbr::foldCase(name));
    }
}

const std::vector<std::string>& genreNames() {
    return catalogue().names;
}

std::string genreTitle(std::size_t index) {
    return index == 0 ? "(not set)" : catalogue().names.at(index);
}

void getGenreIndex(xbr::Parameter& parameter, std::string_view text) {
    const auto& names = catalogue().foldedNames;
    const std::string wanted = xbr::foldCase(text);
    auto index = findIndex(names, [&](const auto& name) { return name == wanted; });
    if (index == names.size()) {
        index = findIndex(names, [&](const auto& name) { return name.find(wanted) != std::string::npos; });
    }
    parameter.set(xbr::integerValue(index < names.size() ? static_cast<std::int64_t>(index) : 0));
}

std::string getGenreText(const xbr::Parameter& parameter) {
    const auto index = static_cast<std::size_t>(parameter.integer());
    const auto& names = catalogue().names;
    return index < names.size() ? names[index] : std::string();
}

} // namespace brindlex
