#include "host/app/headless/commandline/releasefile.h"

#include "host/app/headless/commandline/commandline.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr std::uintmax_t kMaximumSize = std::uintmax_t{16} << 20U;
constexpr int kMaximumDepth = 16;

/// What is wrong with a release file, in words for the user.
class FileFault final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::string readText(const std::string& path) {
    std::error_code failed;
    if (!fs::is_regular_file(path, failed)) {
        throw FileFault(fs::exists(path, failed) ? "is not a file" : "is not there");
    }
    if (fs::file_size(path, failed) > kMaximumSize || failed) {
        throw FileFault("is too large for a release file");
    }
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    if (!file) {
        throw FileFault("cannot be read");
    }
    return bytes.str();
}

/// "parse error at line 3, column 7: ..." without the parser's own prefixes.
std::string describe(const Json::exception& error) {
    const std::string text = error.what();
    const auto end = text.find("] ");
    return end == std::string::npos ? text : text.substr(end + 2);
}

/// Parses, and refuses keys that repeat: which of the two was meant?
Json parse(const std::string& text) {
    std::vector<std::set<std::string>> keys;
    const auto look = [&keys](int depth, Json::parse_event_t event, Json& parsed) {
        if (depth > kMaximumDepth) {
            throw FileFault("is nested too deeply");
        }
        if (event == Json::parse_event_t::object_start) {
            keys.emplace_back();
        } else if (event == Json::parse_event_t::object_end) {
            keys.pop_back();
        } else if (event == Json::parse_event_t::key &&
                   !keys.back().insert(parsed.get<std::string>()).second) {
            throw FileFault("has the key '" + parsed.get<std::string>() + "' twice in one object");
        }
        return true;
    };
    try {
        return Json::parse(text, look);
    } catch (const Json::exception& error) {
        throw FileFault("is not valid JSON: " + describe(error));
    }
}

/// Checks an object and its keys; `where` names it in messages.
void checkObject(const Json& value, const std::string& where, const std::vector<std::string_view>& known) {
    if (!value.is_object()) {
        throw FileFault(where + " must be an object");
    }
    for (const auto& item : value.items()) {
        if (std::find(known.begin(), known.end(), item.key()) == known.end()) {
            throw FileFault(where + " has the unknown key '" + item.key() + "'");
        }
    }
}

std::string textOf(const Json& object, const char* key, const std::string& where) {
    const auto found = object.find(key);
    if (found == object.end()) {
        return {};
    }
    const std::string name = "'" + std::string(key) + "' of " + where;
    if (!found->is_string()) {
        throw FileFault(name + " must be a text");
    }
    std::string text = found->get<std::string>();
    if (const std::string problem = problemOfText(name, text); !problem.empty()) {
        throw FileFault(problem);
    }
    return text;
}

std::int32_t trackNumberOf(const Json& song, const std::string& where) {
    const auto found = song.find("trackNumber");
    if (found == song.end()) {
        return 0;
    }
    const bool isFit = found->is_number_integer() && *found >= 1 && *found <= kMaximumTrackNumber;
    if (!isFit) {
        throw FileFault("'trackNumber' of " + where + " must be a whole number from 1 to " +
                        std::to_string(kMaximumTrackNumber));
    }
    return found->get<std::int32_t>();
}

SongWish readSong(const Json& value, const std::string& where, const fs::path& folder) {
    checkObject(value, where, {"file", "title", "artist", "genre", "trackNumber"});
    const std::string file = textOf(value, "file", where);
    if (file.empty()) {
        throw FileFault(where + " has no 'file'");
    }
    return {(folder / file).string(), textOf(value, "title", where), textOf(value, "artist", where),
            textOf(value, "genre", where), trackNumberOf(value, where)};
}

ReleaseWish readPlan(const Json& root, const fs::path& folder) {
    checkObject(root, "the release", {"album", "genre", "songs"});
    ReleaseWish plan;
    plan.genre = textOf(root, "genre", "the release");
    if (const auto album = root.find("album"); album != root.end()) {
        checkObject(*album, "'album'", {"title", "artist"});
        plan.mode = ReleaseMode::kAlbum;
        plan.albumTitle = textOf(*album, "title", "'album'");
        plan.albumArtist = textOf(*album, "artist", "'album'");
    }
    const auto songs = root.find("songs");
    if (songs == root.end() || !songs->is_array() || songs->empty()) {
        throw FileFault("'songs' must be an array of at least one song");
    }
    for (const Json& song : *songs) {
        const std::string where = "song " + std::to_string(plan.songs.size() + 1);
        plan.songs.push_back(readSong(song, where, folder));
        if (plan.mode == ReleaseMode::kAlbum && !plan.songs.back().genre.empty()) {
            throw FileFault(where + " has a 'genre' of its own, but an album has one for all its songs");
        }
    }
    return plan;
}

} // namespace

bool readReleaseFile(const std::string& path, ReleaseWish& plan, std::string& error) {
    try {
        plan = readPlan(parse(readText(path)), fs::path(path).parent_path());
        return true;
    } catch (const FileFault& problem) {
        error = "the release file '" + path + "': " + problem.what();
        return false;
    }
}

} // namespace xbr::host
