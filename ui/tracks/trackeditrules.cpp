#include "ui/tracks/trackeditrules.h"

#include "framework/support/objects/text.h"
#include "release/genrecatalogue.h"
#include "ui/tracks/requiredfields.h"
#include "ui/tracks/trackitem.h"

#include <algorithm>

namespace brindlex {

TrackEditRules::TrackEditRules(xbr::Component& editor, UploadMode mode, const xbr::ListViewModel& tracks)
    : m_editor(editor),
      m_mode(mode),
      m_tracks(tracks) {
    m_values.albumTitle = xbr::toSingleLine(editor.parameter(kAlbumTitle)->string());
    m_values.albumArtist = xbr::toSingleLine(editor.parameter(kAlbumArtist)->string());
    m_values.genre = getGenreText(*editor.parameter(kPrimaryGenre));
    m_values.trackNumber = static_cast<std::int32_t>(editor.parameter(kTrackNumber)->integer());
    m_values.songTitle = xbr::toSingleLine(editor.parameter(kSongTitle)->string());
    m_values.songArtist = xbr::toSingleLine(editor.parameter(kSongArtist)->string());
}

const std::vector<TrackEditRules::Row>& TrackEditRules::singlesRows() {
    static const std::vector<Row> rows{{kAlbumTitle, &TrackEditRules::singlesAlbumTitle},
                                       {kAlbumArtist, &TrackEditRules::singlesAlbumArtist},
                                       {kPrimaryGenre, &TrackEditRules::singlesGenre},
                                       {kTrackNumber, &TrackEditRules::singlesTrackNumber}};
    return rows;
}

const std::vector<TrackEditRules::Row>& TrackEditRules::albumRows() {
    static const std::vector<Row> rows{{kTrackNumber, &TrackEditRules::albumTrackNumber}};
    return rows;
}

const std::vector<TrackEditRules::Row>& TrackEditRules::commonRows() {
    static const std::vector<Row> rows{{kSongTitle, &TrackEditRules::songTitle},
                                       {kSongArtist, &TrackEditRules::songArtist}};
    return rows;
}

const std::vector<TrackEditRules::Row>& TrackEditRules::wholeAlbumRows() {
    static const std::vector<Row> rows{{kAlbumTitle, &TrackEditRules::wholeAlbumTitle},
                                       {kAlbumArtist, &TrackEditRules::wholeAlbumArtist},
                                       {kPrimaryGenre, &TrackEditRules::wholeAlbumGenre}};
    return rows;
}

void TrackEditRules::run(const std::vector<Row>& rows, std::int32_t tag, TrackItem& track) {
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& each) { return each.tag == tag; });
    if (row != rows.end()) {
        row->rule(*this, track);
    }
}

void TrackEditRules::apply(std::int32_t tag, const Tracks& targets) {
    for (const auto& target : targets) {
        run(isSingles() ? singlesRows() : albumRows(), tag, *target);
        run(commonRows(), tag, *target);
    }
    if (!isSingles()) {
        for (const auto& track : tracksOf(m_tracks)) {
            run(wholeAlbumRows(), tag, *track);
        }
    }
    showMarks(tag, targets);
    for (const std::int32_t markTag : std::exchange(m_cleared, {})) {
        showMarks(markTag, targets);
    }
}

void TrackEditRules::showMarks(std::int32_t markTag, const Tracks& targets) {
    const auto* const field = std::find_if(kRequiredFields.begin(), kRequiredFields.end(),
                                           [&](const auto& each) { return each.markTag == markTag; });
    if (field == kRequiredFields.end()) {
        return;
    }
    const bool isOfSong = markTag == kSongTitleMissing || markTag == kSongArtistMissing;
    for (const auto& track : isSingles() || isOfSong ? targets : tracksOf(m_tracks)) {
        show(markTag, (*track->metadata).*field->missing);
    }
}

void TrackEditRules::set(std::int32_t tag, const std::string& value) {
    m_editor.parameter(tag)->set(xbr::textValue(value));
}

void TrackEditRules::show(std::int32_t tag, bool missing) {
    m_editor.parameter(tag)->set(xbr::boolValue(missing));
}

void TrackEditRules::clearMark(TrackFields& record, std::int32_t tag) {
    const auto* const field = std::find_if(kRequiredFields.begin(), kRequiredFields.end(),
                                           [&](const auto& each) { return each.valueTag == tag; });
    if (!(record.*field->missing) || (record.*field->value).empty()) {
        return;
    }
    record.*field->missing = false;
    if (std::find(m_cleared.begin(), m_cleared.end(), field->markTag) == m_cleared.end()) {
        m_cleared.push_back(field->markTag);
    }
}

// A single is a release of one song: its album bears the song's title and artist, and it is always track 1.

void TrackEditRules::singlesAlbumTitle(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.albumTitle = m_values.albumTitle;
    clearMark(record, kAlbumTitle);
    if (m_values.albumTitle != m_values.songTitle) {
        record.songTitle = m_values.albumTitle;
        track.title = m_values.albumTitle;
        set(kSongTitle, m_values.albumTitle);
    }
}

void TrackEditRules::singlesAlbumArtist(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.albumArtist = m_values.albumArtist;
    if (m_values.albumArtist != m_values.songArtist) {
        const bool hadText = !record.songArtist.empty();
        record.songArtist = m_values.albumArtist;
        set(kSongArtist, m_values.albumArtist);
        if (record.albumArtistMissing && hadText) {
            record.songArtistMissing = false;
            show(kSongArtistMissing, record.songArtistMissing);
        }
    }
    clearMark(record, kAlbumArtist);
}

void TrackEditRules::singlesGenre(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.primaryGenre = m_values.genre;
    record.singlesGenre = m_values.genre;
    clearMark(record, kPrimaryGenre);
}

void TrackEditRules::singlesTrackNumber(TrackItem& track) {
    track.metadata->trackNumber = 1;
    m_editor.parameter(kTrackNumber)->set(xbr::integerValue(1));
}

void TrackEditRules::albumTrackNumber(TrackItem& track) const {
    track.metadata->albumTrackNumber = m_values.trackNumber;
    track.metadata->trackNumber = m_values.trackNumber;
}

void TrackEditRules::songTitle(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.songTitle = m_values.songTitle;
    track.title = m_values.songTitle;
    clearMark(record, kSongTitle);
    if (isSingles() && m_values.songTitle != m_values.albumTitle) {
        record.albumTitle = m_values.songTitle;
        set(kAlbumTitle, m_values.songTitle);
    }
}

void TrackEditRules::songArtist(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.songArtist = m_values.songArtist;
    if (isSingles() && m_values.songArtist != m_values.albumArtist) {
        record.albumArtist = m_values.songArtist;
        set(kAlbumArtist, m_values.songArtist);
        if (record.albumArtistMissing && !m_values.songArtist.empty()) {
            record.albumArtistMissing = false;
            // The song's mark is the one that goes here; the album artist's stays in sight until the track is
            // loaded again, so that users look at the artist that was filled in for them.
            show(kSongArtistMissing, record.albumArtistMissing);
        }
    }
    clearMark(record, kSongArtist);
}

// What an album's tracks share is edited once for all of them.

void TrackEditRules::wholeAlbumTitle(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.albumModeTitle = m_values.albumTitle;
    record.albumTitle = m_values.albumTitle;
    clearMark(record, kAlbumTitle);
}

void TrackEditRules::wholeAlbumArtist(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.albumArtist = m_values.albumArtist;
    clearMark(record, kAlbumArtist);
}

void TrackEditRules::wholeAlbumGenre(TrackItem& track) {
    TrackMetadata& record = *track.metadata;
    record.albumGenre = m_values.genre;
    record.primaryGenre = m_values.genre;
    clearMark(record, kPrimaryGenre);
}

} // namespace brindlex
