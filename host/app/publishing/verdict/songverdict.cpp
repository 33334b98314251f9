#include "host/app/publishing/verdict/songverdict.h"

#include "host/app/publishing/song.h"
#include "host/app/publishing/verdict/words.h"

#include <algorithm>

namespace xbr::host {

namespace {

/// "“Harbour”" or "the album “Night Drive”": sentences name what was sent, one text for a song, one for an
/// album.
class SongJudge {
public:
    SongJudge(const UploadFacts& facts, const TrackFact& track) : m_facts(facts), m_track(track) {}

    SongVerdict verdict() const {
        if (const Problem* problem = problemOfFile()) {
            return unprepared(*problem);
        }
        if (m_track.state == TrackState::kDone) {
            return because(Cause::kPublished, {});
        }
        if (m_track.wasSent) {
            return m_track.status > 0 ? answered() : broken();
        }
        if (m_facts.isCancelled) {
            return because(Cause::kStoppedBefore, Words::tr("“%1” was not sent."),
                           Words::tr("The album “%1” was not sent."));
        }
        return because(Cause::kNotPrepared, Words::tr("“%1” could not be prepared. It was not sent."),
                       Words::tr("The album “%1” could not be prepared. It was not sent."));
    }

private:
    SongVerdict because(Cause cause, std::string sentence) const {
        return {cause,          m_track.label, m_track.source, std::move(sentence),
                m_track.status, m_track.sent,  m_track.missing};
    }
    template <class... More>
    SongVerdict because(Cause cause, const QString& song, const QString& album, const More&... more) const {
        const bool isAlbum = m_facts.isAlbum;
        return because(cause,
                       say(isAlbum ? album : song, isAlbum ? m_facts.albumTitle : m_track.label, more...));
    }

    /// What kept the track from being prepared; null when nothing is known. A file that is no song's is all
    /// songs'.
    const Problem* problemOfFile() const {
        const auto isSource = [](const Problem& problem) {
            return [&problem](const TrackFact& track) { return track.source == problem.subject; };
        };
        const auto found =
            std::find_if(m_facts.files.begin(), m_facts.files.end(), [&](const Problem& problem) {
                const bool isSong =
                    std::any_of(m_facts.tracks.begin(), m_facts.tracks.end(), isSource(problem));
                return m_facts.isAlbum || (isSong ? m_track.source == problem.subject : !m_track.wasSent);
            });
        return found == m_facts.files.end() ? nullptr : &*found;
    }

    SongVerdict unprepared(const Problem& problem) const {
        const std::string file = fileNameOf(problem.subject);
        switch (problem.fault) {
        case Fault::kMissing:
            return because(Cause::kGone, Words::tr("“%2” is no longer there. “%1” was not sent."),
                           Words::tr("“%2” is no longer there. The album “%1” is not complete."), file);
        case Fault::kChanged:
            return because(Cause::kChanged, Words::tr("“%2” changed while it was copied. “%1” was not sent."),
                           Words::tr("“%2” changed while it was copied. The album “%1” is not complete."),
                           file);
        case Fault::kDiskFull:
            return because(
                Cause::kDiskFull,
                Words::tr("There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was not sent."),
                Words::tr(
                    "There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” was not "
                    "sent."),
                m_facts.folder, wordsOfSize(m_facts.neededSpace), wordsOfSize(m_facts.freeSpace));
        case Fault::kNoTemporaryFolder:
            return because(Cause::kNoFolder,
                           say(Words::tr("The folder for copies, “%1”, cannot be written."), m_facts.folder));
        default:
            return because(Cause::kNotPrepared, Words::tr("“%1” could not be prepared: %2. It was not sent."),
                           Words::tr("The album “%1” could not be prepared: %2. It was not sent."),
                           problem.words);
        }
    }

    SongVerdict answered() const {
        // Tracks of an album that go again with the others are waiting once more.
        const bool isIncomplete = m_track.state == TrackState::kMissingInformation ||
                                  (m_track.state == TrackState::kNone && m_track.status < 500);
        if (m_track.status == 401) {
            return because(Cause::kExpired,
                           say(Words::tr("The service does not accept the stored sign-in any more.")));
        }
        if (isIncomplete) {
            return incomplete();
        }
        if (m_track.status == 413) {
            return because(Cause::kTooLarge,
                           Words::tr("The service refused “%1” because it is too large (%2)."),
                           Words::tr("The service refused the album “%1” because it is too large (%2)."),
                           wordsOfSize(m_track.total));
        }
        if (m_track.status == 429) {
            return tooMany();
        }
        const std::string status = std::to_string(m_track.status);
        if (m_track.status >= 500) {
            return because(
                Cause::kServiceFault,
                Words::tr(
                    "The service has a fault (%2). “%1” was not taken; nothing is wrong with the song."),
                Words::tr(
                    "The service has a fault (%2). The album “%1” was not taken; nothing is wrong with it."),
                status);
        }
        const std::string words = quoted(m_track.said);
        return words.empty()
                   ? because(Cause::kRefused, Words::tr("The service refused “%1” (%2) and gave no reason."),
                             Words::tr("The service refused the album “%1” (%2) and gave no reason."), status)
                   : because(Cause::kRefused, Words::tr("The service refused “%1” (%2): %3"),
                             Words::tr("The service refused the album “%1” (%2): %3"), status, words);
    }

    SongVerdict incomplete() const {
        const std::vector<Detail> missing = missingIn(m_facts, m_track);
        return missing.empty()
                   ? because(
                         Cause::kRefusedMissing,
                         Words::tr("The service refused “%1” because details are missing, but none is empty "
                                   "here: %2"),
                         Words::tr(
                             "The service refused the album “%1” because details are missing, but none is "
                             "empty here: %2"),
                         quoted(m_track.said))
                   : because(Cause::kRefusedMissing,
                             Words::tr("The service refused “%1” because details are missing: %2."),
                             Words::tr("The service refused the album “%1” because details are missing: %2."),
                             wordsOf(missing));
    }

    SongVerdict tooMany() const {
        return m_track.wait < 0
                   ? because(
                         Cause::kTooMany,
                         Words::tr(
                             "The service asks to wait a while before the next upload. “%1” was not taken."),
                         Words::tr(
                             "The service asks to wait a while before the next upload. The album “%1” was "
                             "not taken."))
                   : because(
                         Cause::kTooMany,
                         Words::tr("The service asks to wait %2 before the next upload. “%1” was not taken."),
                         Words::tr(
                             "The service asks to wait %2 before the next upload. The album “%1” was not "
                             "taken."),
                         wordsOfSeconds(m_track.wait));
    }

    /// No answer came.
    SongVerdict broken() const {
        if (isAboutServer(m_track.problem) && m_track.sent == 0) {
            return because(causeOfServer(m_track.problem), wordsOfServer(m_track.problem));
        }
        if (m_track.total > 0 && m_track.sent >= m_track.total) {
            return unsure();
        }
        const auto [part, whole] = wordsOfSizes(m_track.sent, m_track.total);
        return m_facts.isCancelled
                   ? because(Cause::kStopped, Words::tr("“%1” was stopped at %2 of %3 and did not arrive."),
                             Words::tr("The album “%1” was stopped at %2 of %3 and did not arrive."), part,
                             whole)
                   : because(Cause::kLost,
                             Words::tr("The connection broke after %2 of %3. “%1” did not arrive."),
                             Words::tr("The connection broke after %2 of %3. The album “%1” did not arrive."),
                             part, whole);
    }

    /// All of it left, and nobody answered.
    SongVerdict unsure() const {
        return m_facts.isCancelled
                   ? because(Cause::kStoppedUnsure,
                             Words::tr(
                                 "Stopped after all of “%1” was sent, before the service answered. It may be "
                                 "published."),
                             Words::tr(
                                 "Stopped after all of the album “%1” was sent, before the service answered. "
                                 "It may be published."))
                   : because(
                         Cause::kLostUnsure,
                         Words::tr("The connection broke after all of “%1” was sent, before the service "
                                   "answered. It may be published."),
                         Words::tr("The connection broke after all of the album “%1” was sent, before the "
                                   "service answered. It may be published."));
    }

    const UploadFacts& m_facts;
    const TrackFact& m_track;
};

} // namespace

SongVerdict judge(const UploadFacts& facts, const TrackFact& track) {
    return SongJudge(facts, track).verdict();
}

std::vector<Detail> missingIn(const UploadFacts& facts, const TrackFact& track) {
    std::vector<Detail> missing;
    for (const TrackFact& each : facts.tracks) {
        if (&each == &track || facts.isAlbum) {
            missing.insert(missing.end(), each.missing.begin(), each.missing.end());
        }
    }
    std::sort(missing.begin(), missing.end());
    missing.erase(std::unique(missing.begin(), missing.end()), missing.end());
    return missing;
}

} // namespace xbr::host
