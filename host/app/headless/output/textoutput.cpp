#include "host/app/headless/output/output.h"
#include "host/app/headless/output/terminal.h"
#include "host/app/publishing/upload/progresswords.h"
#include "host/app/publishing/verdict/words.h"
#include "host/base/textscan.h"

#include <QElapsedTimer>

#include <algorithm>
#include <iostream>
#include <map>

namespace xbr::host {

namespace {

/// What is told once a song has come to its end; empty before that.
std::string wordsOfState(TrackState state) {
    switch (state) {
    case TrackState::kDone:
        return say(Output::tr("published"));
    case TrackState::kFailed:
        return say(Output::tr("not published"));
    case TrackState::kMissingInformation:
        return say(Output::tr("refused, details are missing"));
    case TrackState::kNone:
        break;
    }
    return {};
}

std::string orNotSet(const std::string& text) {
    return text.empty() ? say(Output::tr("(not set)")) : text;
}

std::string wordsOfSong(const PlannedSong& song) {
    const std::string start = "  " + std::to_string(song.number) + ". " + orNotSet(song.title) + " - " +
                              orNotSet(song.artist) + " (";
    return start +
           (song.isRendered ? say(Output::tr("%1, rendered from “%2”"), song.fileName, song.source)
                            : song.fileName) +
           ")";
}

/// A release that would be sent, as lines. Texts from outside are in there as they are.
std::vector<std::string> linesOf(const Draft& draft) {
    const PlannedRelease& release = draft.release;
    const std::string number = std::to_string(draft.index + 1);
    const std::string count = std::to_string(draft.count);
    std::vector<std::string> lines{draft.isIncomplete
                                       ? say(Output::tr("Release %1 of %2 (incomplete)"), number, count)
                                       : say(Output::tr("Release %1 of %2"), number, count),
                                   say(Output::tr("  Title: %1"), orNotSet(release.title)),
                                   say(Output::tr("  Artist: %1"), orNotSet(release.artist)),
                                   say(Output::tr("  Genre: %1"), orNotSet(release.genre))};
    for (const PlannedSong& song : release.songs) {
        lines.push_back(wordsOfSong(song));
    }
    return lines;
}

/// Several songs that came to different ends need a line each; otherwise the verdict says it all.
bool needsList(const RunEnd& end) {
    return end.verdict.songs.size() > 1 &&
           std::any_of(end.songs.begin(), end.songs.end(),
                       [&](const SongResult& song) { return song.sentence != end.songs.front().sentence; });
}

std::string wordsOfCount(const RunEnd& end) {
    const std::string count = std::to_string(end.songs.size());
    const std::string done = std::to_string(std::count_if(
        end.songs.begin(), end.songs.end(), [](const SongResult& song) { return song.isPublished(); }));
    return end.account.empty()
               ? say(Output::tr("Published %1 of %2 songs as singles."), done, count)
               : say(Output::tr("Published %1 of %2 songs as singles, as %3."), done, count, end.account);
}

/// What became of a song that is not published.
std::string wordsOfResult(const SongResult& song) {
    const std::string file = fileNameOf(song.source);
    return song.isUnsure() ? say(Output::tr("Perhaps published: %1: it was sent, the answer did not "
                                            "come. Look at your account page."),
                                 file)
                           : say(Output::tr("Not published: %1: %2"), file, song.sentence);
}

/// Lines for people: results on the standard output, problems and what moves on the standard error.
class TextOutput final : public Output {
public:
    TextOutput(bool isQuiet, bool isVerbose, bool isAnswered)
        : m_isQuiet(isQuiet),
          m_isVerbose(isVerbose && !isQuiet),
          m_isAnswered(isAnswered),
          m_moving(!isQuiet) {}

    void message(std::string_view text) override { note(text); }

    void signInAddress(std::string_view url) override {
        aside(say(Output::tr("Waiting for your permission in the browser. If no page "
                             "opened, open this address:")));
        aside(url);
        aside(m_isAnswered
                  ? say(Output::tr("Link back (paste it here if the browser does not return by itself):"))
                  : say(Output::tr("Hand it over with: %1"), "xbrhost open-url 'LINK'"));
    }

    void account(bool, std::string_view) override {} // a sentence tells it

    void preparation(std::string_view title, double fraction, std::string_view what) override {
        static constexpr double kHundred = 100.0;
        if (m_moving.isShown()) {
            m_moving.show(plainText(title) + " " + std::to_string(static_cast<int>(fraction * kHundred)) +
                          " % " + plainText(what));
        } else if (m_isVerbose && m_step != what && !what.empty()) {
            m_step = what;
            note(std::string(title) + ": " + m_step);
        }
    }

    void track(const TrackReport& track, std::size_t count) override {
        TrackState& known = m_states.try_emplace(track.index, TrackState::kNone).first->second;
        if (std::exchange(known, track.state) != track.state && track.state != TrackState::kNone) {
            result(placeOf(track.index, count) + labelOf(track) + ": " + wordsOfState(track.state));
        }
    }

    void sending(const UploadProgress& progress) override {
        if (m_moving.isShown()) {
            m_moving.show(plainText(movingLine(progress, m_moving.columns())));
        }
        if (std::exchange(m_sending, progress.index) != progress.index) {
            m_told.start();
            if (!m_moving.isShown() || m_isVerbose) {
                note(say(Output::tr("%1%2: sending %3"), placeOf(progress.index, progress.songs),
                         progress.label, wordsOfSize(progress.song.total)));
            }
        } else if (!m_moving.isShown() && m_told.hasExpired(kTellEvery)) {
            m_told.start();
            noteProgress(progress);
        }
    }

    void finding(const Finding& finding) override { complain(wordsOf(finding)); }

    void draft(const Draft& draft) override {
        for (const std::string& text : linesOf(draft)) {
            result(text);
        }
    }

    void genre(std::string_view name) override { print(std::cout, name); }

    void ended(ExitCode, std::string_view text) override {
        if (!text.empty()) {
            complain(text);
        }
    }

    void finished(const RunEnd& end) override {
        for (const std::string& warning : end.verdict.warnings) {
            complain(warning);
        }
        if (needsList(end)) {
            tellList(end);
        } else if (!end.verdict.isGood()) {
            complain(sentenceOf(end.verdict));
        } else if (!end.verdict.sentence.empty()) {
            result(end.verdict.sentence);
        }
        if (m_isVerbose && end.bytes > 0) {
            tellSpeed(end);
        }
    }

private:
    static constexpr qint64 kTellEvery = 60'000; // milliseconds, where nothing moves

    void print(std::ostream& stream, std::string_view text) {
        m_moving.clear();
        stream << forTerminal(plainText(text)) << std::endl;
    }
    void result(std::string_view text) {
        if (!m_isQuiet) {
            print(std::cout, text);
        }
    }
    void note(std::string_view text) {
        if (!m_isQuiet) {
            print(std::cerr, text);
        }
    }
    void aside(std::string_view text) { print(std::cerr, text); }
    void complain(std::string_view text) {
        m_moving.clear();
        printError(text);
    }

    static std::string placeOf(std::int32_t index, std::size_t count) {
        return std::to_string(index + 1) + "/" + std::to_string(count) + " ";
    }

    void noteProgress(const UploadProgress& progress) {
        const auto [sent, size] = wordsOfSizes(progress.song.bytes, progress.song.total);
        note(say(Output::tr("%1%2: %3 %, %4 of %5, %6 left, all %7 left"),
                 placeOf(progress.index, progress.songs), progress.label,
                 std::to_string(progress.song.percent()), sent, size,
                 wordsOfSeconds(progress.song.secondsLeft), wordsOfSeconds(progress.all.secondsLeft)));
    }

    void tellList(const RunEnd& end) {
        if (end.verdict.code == ExitCode::kInterrupted) {
            result(say(Words::tr("Stopped.")));
        }
        result(wordsOfCount(end));
        for (const SongResult& song : end.songs) {
            if (!song.isPublished() && !song.isLeftOut) {
                print(std::cerr, wordsOfResult(song));
            }
        }
        if (!end.verdict.next.empty()) {
            print(std::cerr, end.verdict.next);
        }
    }

    void tellSpeed(const RunEnd& end) {
        static constexpr std::int64_t kSecond = 1000;
        const std::int64_t time = std::max<std::int64_t>(end.milliseconds, 1);
        note(say(Output::tr("Sent %1 in %2, %3/s."), wordsOfSize(end.bytes),
                 wordsOfSeconds((time + kSecond - 1) / kSecond), wordsOfSize(end.bytes * kSecond / time)));
    }

    bool m_isQuiet;
    bool m_isVerbose;
    bool m_isAnswered;
    MovingLine m_moving;
    std::string m_step;
    std::int32_t m_sending = -1; ///< index of the song on its way
    QElapsedTimer m_told;
    std::map<std::int32_t, TrackState> m_states;
};

} // namespace

std::unique_ptr<Output> makeTextOutput(bool isQuiet, bool isVerbose, bool isAnswered) {
    return std::make_unique<TextOutput>(isQuiet, isVerbose, isAnswered);
}

} // namespace xbr::host
