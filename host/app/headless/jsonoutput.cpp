#include "host/app/headless/output.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <map>

namespace xbr::host {

namespace {

using Json = nlohmann::ordered_json;

Json namesOf(const std::vector<Detail>& details) {
    Json names = Json::array();
    for (const Detail detail : details) {
        names.push_back(parameterOf(detail));
    }
    return names;
}

/// One object per line, for programs. "event" names the kind; what a kind holds only grows.
class JsonOutput final : public Output {
public:
    void message(std::string_view text) override { write({{"event", "message"}, {"text", text}}); }

    void signInAddress(std::string_view url) override { write({{"event", "sign-in"}, {"url", url}}); }

    void account(bool isSignedIn, std::string_view name) override {
        write({{"event", "account"}, {"signedIn", isSignedIn}, {"name", name}});
    }

    void preparation(std::string_view title, double fraction, std::string_view what) override {
        write({{"event", "preparation"}, {"text", title}, {"progress", fraction}, {"file", what}});
    }

    void track(const TrackReport& track, std::size_t) override {
        // Each percent once: a fast transfer tells its progress a thousand times.
        const auto key = std::tuple(track.state, track.isUploading, static_cast<int>(track.progress * 100.0));
        const auto [known, isNew] = m_told.try_emplace(track.index, key);
        if (!isNew && known->second == key) {
            return;
        }
        known->second = key;
        write({{"event", "track"},
               {"index", track.index},
               {"title", track.title},
               {"file", track.file},
               {"state", static_cast<int>(track.state)},
               {"uploading", track.isUploading},
               {"progress", track.progress}});
    }

    void draft(const Draft& draft) override {
        const PlannedRelease& release = draft.release;
        Json songs = Json::array();
        for (const PlannedSong& song : release.songs) {
            songs.push_back({{"title", song.title},
                             {"artist", song.artist},
                             {"trackNumber", song.number},
                             {"source", song.source},
                             {"fileName", song.fileName},
                             {"rendered", song.isRendered},
                             {"missing", namesOf(song.missing)}});
        }
        write({{"event", "draft"},
               {"index", draft.index},
               {"title", release.title},
               {"artist", release.artist},
               {"genre", release.genre},
               {"songs", std::move(songs)},
               {"missing", namesOf(release.missing)},
               {"problem", draft.problem}});
    }

    void finished(ExitCode code) override {
        write({{"event", "finished"}, {"exitCode", static_cast<int>(code)}});
    }

    void finished(const Verdict& verdict) override {
        write({{"event", "finished"},
               {"exitCode", static_cast<int>(verdict.code)},
               {"verdict", nameOf(verdict.cause)},
               {"text", verdict.sentence}});
    }

private:
    static void write(const Json& event) {
        static constexpr int kOneLine = -1;
        std::cout << event.dump(kOneLine, ' ', false, Json::error_handler_t::replace) << std::endl;
    }

    std::map<std::int32_t, std::tuple<TrackState, bool, int>> m_told;
};

} // namespace

std::unique_ptr<Output> makeJsonOutput() {
    return std::make_unique<JsonOutput>();
}

} // namespace xbr::host
