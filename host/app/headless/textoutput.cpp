#include "host/app/headless/output.h"
#include "host/base/textscan.h"

#include <iostream>
#include <map>
#include <sys/ioctl.h>
#include <unistd.h>

namespace xbr::host {

namespace {

constexpr char kWaiting[] = "waiting";

const char* stateText(const TrackReport& track) {
    switch (track.state) {
    case TrackState::kDone:
        return "done";
    case TrackState::kFailed:
        return "failed";
    case TrackState::kMissingInformation:
        return "refused, information is missing";
    case TrackState::kNone:
        break;
    }
    return track.isUploading ? "uploading" : kWaiting;
}

int percent(double fraction) {
    return static_cast<int>(fraction * 100.0);
}

std::string orNotSet(const std::string& text) {
    return text.empty() ? "(not set)" : text;
}

std::string describeSong(const PlannedSong& song) {
    const std::string origin = song.isRendered ? ", rendered from '" + song.source + "'" : "";
    return "  " + std::to_string(song.number) + ". " + orNotSet(song.title) + " - " + orNotSet(song.artist) +
           " (" + song.fileName + origin + ")";
}

/// A release that would be sent, as lines. Texts from outside are in there as they are.
std::vector<std::string> describeDraft(const Draft& draft) {
    const PlannedRelease& release = draft.release;
    std::vector<std::string> lines;
    lines.push_back("Release " + std::to_string(draft.index + 1) + " of " + std::to_string(draft.count) +
                    (draft.isIncomplete ? " (incomplete)" : ""));
    lines.push_back("  Title:  " + orNotSet(release.title));
    lines.push_back("  Artist: " + orNotSet(release.artist));
    lines.push_back("  Genre:  " + orNotSet(release.genre));
    for (const PlannedSong& song : release.songs) {
        lines.push_back(describeSong(song));
    }
    return lines;
}

/// Lines for people. On a terminal what moves is shown in one line that is written over.
class TextOutput final : public Output {
public:
    TextOutput() : m_isTerminal(isatty(STDOUT_FILENO) == 1) {}
    ~TextOutput() override { clearStatus(); }

    void message(std::string_view text) override { line(plainText(text)); }

    void signInAddress(std::string_view url) override {
        line("Waiting for the browser. If it does not open by itself, open this address:");
        line(plainText(url));
    }

    void account(bool isSignedIn, std::string_view name) override {
        const std::string who = name.empty() ? "" : " as " + plainText(name);
        line(isSignedIn ? "Signed in" + who + "." : "Not signed in.");
    }

    void preparation(std::string_view title, double fraction, std::string_view what) override {
        if (!m_isTerminal) {
            if (m_title != title) { // one line for all of it
                line(plainText(title));
            }
            m_title = title;
            return;
        }
        status(plainText(title) + " " + std::to_string(percent(fraction)) + "% " + plainText(what));
    }

    void track(const TrackReport& track, std::size_t count) override {
        m_title.clear();
        const std::string start = std::to_string(track.index + 1) + "/" + std::to_string(count) + " " +
                                  plainText(labelOf(track)) + ": " + stateText(track);
        // Until a track moves there is nothing to say about it.
        std::string& known = m_states.try_emplace(track.index, kWaiting).first->second;
        const bool isNews = known != stateText(track);
        known = stateText(track);
        if (track.isUploading && m_isTerminal) {
            status(start + " " + std::to_string(percent(track.progress)) + "%");
        } else if (isNews) {
            line(start);
        }
    }

    void draft(const Draft& draft) override {
        for (const std::string& text : describeDraft(draft)) {
            line(plainText(text));
        }
    }

    void finished(ExitCode) override { clearStatus(); }

    void finished(const Verdict& verdict) override {
        clearStatus();
        if (verdict.isGood() && verdict.cause == Cause::kPublished && !verdict.sentence.empty()) {
            line(plainText(verdict.sentence));
        }
    }

private:
    void line(const std::string& text) {
        clearStatus();
        std::cout << text << std::endl;
    }

    void status(const std::string& text) {
        winsize size{};
        const bool isKnown = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 1;
        std::cout << '\r' << firstCharacters(text, isKnown ? size.ws_col - 1U : 79U) << "\x1b[K"
                  << std::flush;
        m_isStatusShown = true;
    }

    void clearStatus() {
        if (m_isStatusShown) {
            std::cout << "\r\x1b[K" << std::flush;
            m_isStatusShown = false;
        }
    }

    bool m_isTerminal;
    bool m_isStatusShown = false;
    std::string m_title;
    std::map<std::int32_t, std::string> m_states;
};

} // namespace

std::unique_ptr<Output> makeTextOutput() {
    return std::make_unique<TextOutput>();
}

} // namespace xbr::host
