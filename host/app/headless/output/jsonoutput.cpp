#include "host/app/headless/output/output.h"
#include "host/app/publishing/verdict/words.h"

#include <QElapsedTimer>
#include <nlohmann/json.hpp>

#include <algorithm>
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

/// What is not known is left out.
void addNumber(Json& event, const char* name, std::int64_t value) {
    if (value >= 0) {
        event[name] = value;
    }
}

void addText(Json& event, const char* name, const std::string& value) {
    if (!value.empty()) {
        event[name] = value;
    }
}

void addAmount(Json& event, const Amount& amount, std::int64_t bytesPerSecond) {
    addNumber(event, "bytes", amount.bytes);
    addNumber(event, "totalBytes", amount.total);
    addNumber(event, "bytesPerSecond", bytesPerSecond);
    addNumber(event, "secondsLeft", amount.secondsLeft);
}

/// What became of a song, as a name.
const char* resultOf(const SongResult& song) {
    if (song.isLeftOut) {
        return "left-out";
    }
    if (song.isPublished()) {
        return "published";
    }
    if (song.isUnsure()) {
        return "unsure";
    }
    if (song.status > 0) {
        return "refused";
    }
    return song.cause == Cause::kLost || song.cause == Cause::kStopped ? "did-not-arrive" : "not-sent";
}

std::int64_t count(const RunEnd& end, const char* result) {
    return std::count_if(end.songs.begin(), end.songs.end(),
                         [&](const SongResult& song) { return std::string_view(resultOf(song)) == result; });
}

/// One object per line, for programs. "event" names the kind; what a kind holds only grows.
class JsonOutput final : public Output {
public:
    void message(std::string_view text) override { write({{"event", "message"}, {"text", text}}); }

    void signInAddress(std::string_view url) override { write({{"event", "sign-in"}, {"url", url}}); }

    void account(bool isSignedIn, std::string_view name) override {
        write({{"event", "account"}, {"signedIn", isSignedIn}, {"name", name}});
    }

    void preparing(const PreparationProgress& progress) override { m_preparing = progress.amount; }

    void preparation(std::string_view title, double fraction, std::string_view what) override {
        if (m_prepared.isValid() && !m_prepared.hasExpired(kTellEvery) && m_title == title) {
            return;
        }
        m_prepared.start();
        m_title = title;
        Json event{{"event", "preparation"}, {"text", title}, {"progress", fraction}, {"file", what}};
        if (m_preparing.total >= 0) {
            addAmount(event, m_preparing, -1);
        }
        write(event);
    }

    void track(const TrackReport& track, std::size_t) override {
        m_tracks[track.index] = track;
        const auto key = std::pair(track.state, track.isUploading);
        const auto [known, isNew] = m_told.try_emplace(track.index, key);
        if (isNew || std::exchange(known->second, key) != key) {
            write(eventOf(track));
        }
    }

    void sending(const UploadProgress& progress) override {
        const auto found = m_tracks.find(progress.index);
        if (found == m_tracks.end() || !found->second.isUploading) {
            return; // its end was told
        }
        Json event = eventOf(found->second);
        addAmount(event, progress.song, progress.bytesPerSecond);
        write(event);
        if (!m_summed.isValid() || m_summed.hasExpired(kSumEvery)) {
            m_summed.start();
            Json all{{"event", "progress"}};
            addAmount(all, progress.all, progress.bytesPerSecond);
            all["songsDone"] = progress.songsDone;
            all["songs"] = progress.songs;
            write(all);
        }
    }

    void finding(const Finding& finding) override {
        problem(finding.weight == Finding::Weight::kFatal, nameOf(causeOf(finding)), wordsOf(finding),
                &finding);
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

    void genre(std::string_view name) override { write({{"event", "genre"}, {"name", name}}); }

    void ended(ExitCode code, std::string_view text) override {
        Json event{{"event", "finished"}, {"exitCode", static_cast<int>(code)}};
        addText(event, "text", std::string(text));
        write(event);
        if (!text.empty()) {
            printError(text);
        }
    }

    void finished(const RunEnd& end) override {
        const Verdict& verdict = end.verdict;
        for (const std::string& warning : verdict.warnings) {
            problem(false, nameOf(verdict.cause), warning, nullptr);
        }
        if (!verdict.isGood()) {
            problem(true, nameOf(verdict.cause), sentenceOf(verdict), nullptr);
        }
        for (const SongResult& song : end.songs) {
            write(eventOf(song));
        }
        Json event{{"event", "finished"},
                   {"exitCode", static_cast<int>(verdict.code)},
                   {"verdict", nameOf(verdict.cause)},
                   {"text", verdict.sentence}};
        if (!end.songs.empty()) {
            static constexpr double kSecond = 1000.0;
            event["published"] = count(end, "published");
            event["unsure"] = count(end, "unsure");
            event["notPublished"] =
                static_cast<std::int64_t>(end.songs.size()) - count(end, "published") - count(end, "unsure");
            event["bytes"] = end.bytes;
            event["seconds"] = static_cast<double>(end.milliseconds) / kSecond;
        }
        write(event);
    }

private:
    static constexpr qint64 kTellEvery = 250; // milliseconds
    static constexpr qint64 kSumEvery = 1000;

    static void write(const Json& event) {
        static constexpr int kOneLine = -1;
        std::cout << event.dump(kOneLine, ' ', false, Json::error_handler_t::replace) << std::endl;
    }

    static void problem(bool isError, const char* cause, const std::string& text, const Finding* finding) {
        Json event{
            {"event", "problem"}, {"level", isError ? "error" : "warning"}, {"cause", cause}, {"text", text}};
        if (finding) {
            addText(event, "file", finding->path);
            if (!finding->missing.empty()) {
                event["fields"] = namesOf(finding->missing);
            } else if (finding->kind == Finding::Kind::kUnknownGenre) {
                event["fields"] = namesOf({Detail::kGenre});
                event["near"] = finding->near;
            }
        }
        write(event);
        printError(text);
    }

    static Json eventOf(const TrackReport& track) {
        return {{"event", "track"},
                {"index", track.index},
                {"title", track.title},
                {"file", track.file},
                {"state", static_cast<int>(track.state)},
                {"uploading", track.isUploading},
                {"progress", track.progress}};
    }

    static Json eventOf(const SongResult& song) {
        Json event{{"event", "song"}};
        addNumber(event, "index", song.index);
        event["file"] = song.source;
        event["title"] = song.title;
        event["result"] = resultOf(song);
        if (!song.isPublished()) {
            event["cause"] = nameOf(song.cause);
        }
        if (song.status > 0) {
            event["status"] = song.status;
        }
        addText(event, "text", song.sentence);
        return event;
    }

    std::string m_title;
    Amount m_preparing;
    QElapsedTimer m_prepared;
    QElapsedTimer m_summed;
    std::map<std::int32_t, TrackReport> m_tracks;
    std::map<std::int32_t, std::pair<TrackState, bool>> m_told;
};

} // namespace

std::unique_ptr<Output> makeJsonOutput() {
    return std::make_unique<JsonOutput>();
}

} // namespace xbr::host
