#include "sandbox/upload/metadata.h"

#include "sandbox/http/text.h"
#include "sandbox/upload/refusal.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <span>
#include <vector>

namespace sandbox {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kReleaseKeys[] = {"external_release_id", "client_id",     "title", "various",
                                             "main_artists",        "primary_genre", "songs"};
constexpr std::string_view kSongKeys[] = {"title", "audio_filename", "artists", "track_number"};
constexpr std::string_view kMainArtistKeys[] = {"name"};
constexpr std::string_view kSongArtistKeys[] = {"name", "roles"};

[[noreturn]] void refuseMetadata(const std::string& why) {
    throw Refusal(400, "metadata.json: " + why);
}

// Watches the parser for names that come twice in one object, which the tree would swallow.
class RepeatWatch {
public:
    bool operator()(int /*depth*/, Json::parse_event_t event, Json& parsed) {
        if (event == Json::parse_event_t::object_start) {
            m_open.emplace_back();
        } else if (event == Json::parse_event_t::object_end) {
            m_open.pop_back();
        } else if (event == Json::parse_event_t::key) {
            m_repeated = !m_open.back().insert(parsed.get<std::string>()).second || m_repeated;
        }
        return true;
    }

    bool repeated() const { return m_repeated; }

private:
    std::vector<std::set<std::string>> m_open;
    bool m_repeated = false;
};

Json parse(std::string_view text) {
    RepeatWatch watch;
    try {
        auto tree = Json::parse(text, std::ref(watch));
        if (watch.repeated()) {
            refuseMetadata("a key comes twice in one object");
        }
        return tree;
    } catch (const Json::exception& error) {
        refuseMetadata(std::string("not valid JSON: ") + error.what());
    }
}

// One walk over the document. Shape faults end it at once; missing properties are collected, so that a sender
// learns about all of them in one answer.
class Checker {
public:
    explicit Checker(std::string_view clientId) : m_clientId(clientId) {}

    Metadata check(const Json& release);

private:
    static void checkKeys(const Json& value, std::span<const std::string_view> known,
                          const std::string& where);
    static const Json& member(const Json& object, const char* key, const std::string& where);
    static const Json& onlyElement(const Json& object, const char* key, const std::string& where);
    static std::string text(const Json& object, const char* key, const std::string& where);
    void required(const Json& object, const char* key, const std::string& where);
    void checkSongs(const Json& songs);
    void checkSong(const Json& song, const std::string& where);
    void checkSongArtist(const Json& song, const std::string& where);
    void reportMissing() const;

    std::string m_clientId;
    Metadata m_metadata;
    std::vector<std::string> m_missing;
};

void Checker::checkKeys(const Json& value, std::span<const std::string_view> known,
                        const std::string& where) {
    if (!value.is_object()) {
        refuseMetadata(where + " is not an object");
    }
    auto next = known.begin();
    for (const auto& item : value.items()) {
        const auto found = std::find(next, known.end(), item.key());
        if (found == known.end()) {
            refuseMetadata(where + ": key '" + item.key() + "' is unknown or out of order");
        }
        next = found + 1;
    }
}

const Json& Checker::member(const Json& object, const char* key, const std::string& where) {
    const auto found = object.find(key);
    if (found == object.end()) {
        refuseMetadata(where + ": '" + key + "' is missing");
    }
    return *found;
}

const Json& Checker::onlyElement(const Json& object, const char* key, const std::string& where) {
    const auto& list = member(object, key, where);
    if (!list.is_array() || list.size() != 1) {
        refuseMetadata(where + ": '" + key + "' is not an array of exactly one element");
    }
    return list.front();
}

std::string Checker::text(const Json& object, const char* key, const std::string& where) {
    const auto& value = member(object, key, where);
    if (!value.is_string()) {
        refuseMetadata(where + ": '" + key + "' is not a string");
    }
    return value.get<std::string>();
}

void Checker::required(const Json& object, const char* key, const std::string& where) {
    if (!object.contains(key)) {
        m_missing.push_back(where == "release" ? key : where + "." + key);
    } else if (text(object, key, where).empty()) {
        refuseMetadata(where + ": '" + key + "' is empty; an empty property is to be left out");
    }
}

Metadata Checker::check(const Json& release) {
    const std::string where = "release";
    checkKeys(release, kReleaseKeys, where);
    if (!text(release, "external_release_id", where).empty()) {
        refuseMetadata("'external_release_id' is not empty");
    }
    if (text(release, "client_id", where) != m_clientId) {
        refuseMetadata("'client_id' is not the client that signed in");
    }
    required(release, "title", where);
    if (release.contains("various") && text(release, "various", where) != "true") {
        refuseMetadata("'various' is not the string \"true\"");
    }
    const auto& artist = onlyElement(release, "main_artists", where);
    checkKeys(artist, kMainArtistKeys, "main_artists[0]");
    required(artist, "name", "main_artists[0]");
    required(release, "primary_genre", where);
    checkSongs(member(release, "songs", where));
    reportMissing();
    return std::move(m_metadata);
}

void Checker::checkSongs(const Json& songs) {
    if (!songs.is_array() || songs.empty()) {
        refuseMetadata("'songs' is not an array with at least one song");
    }
    for (std::size_t i = 0; i < songs.size(); ++i) {
        checkSong(songs[i], "songs[" + std::to_string(i) + "]");
    }
}

void Checker::checkSong(const Json& song, const std::string& where) {
    checkKeys(song, kSongKeys, where);
    if (text(song, "title", where).empty()) {
        refuseMetadata(where + ": 'title' is empty");
    }
    auto file = text(song, "audio_filename", where);
    if (!isPlainFileName(file)) {
        refuseMetadata(where + ": 'audio_filename' is not a plain file name");
    }
    m_metadata.audioFiles.insert(std::move(file));
    checkSongArtist(song, where);
    if (song.contains("track_number") && !song["track_number"].is_number_integer()) {
        refuseMetadata(where + ": 'track_number' is not an integer");
    }
}

void Checker::checkSongArtist(const Json& song, const std::string& where) {
    const auto path = where + ".artists[0]";
    const auto& artist = onlyElement(song, "artists", where);
    checkKeys(artist, kSongArtistKeys, path);
    if (member(artist, "roles", path) != Json::array({"Main Artist"})) {
        refuseMetadata(path + ": 'roles' is not [\"Main Artist\"]");
    }
    required(artist, "name", path);
}

void Checker::reportMissing() const {
    if (m_missing.empty()) {
        return;
    }
    std::string names;
    for (const auto& name : m_missing) {
        names += (names.empty() ? "'" : ", '") + name + "'";
    }
    throw Refusal(422, "Release metadata did not contain a required property: " + names);
}

} // namespace

Metadata checkMetadata(std::string_view text, std::string_view clientId) {
    return Checker(clientId).check(parse(text));
}

} // namespace sandbox
