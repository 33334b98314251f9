#pragma once

#include "framework/support/parts/component.h"
#include "framework/support/parts/listviewmodel.h"
#include "ui/tracks/trackediting.h"
#include "ui/tracks/trackitem.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// What the user's change of one parameter does to the tracks: one small function a rule, and tables that say
/// which rule belongs to which parameter and mode. Marks of missing values are only ever taken away here.
class TrackEditRules {
public:
    /// Works on the editor's parameters as they are now.
    TrackEditRules(xbr::Component& editor, UploadMode mode, const xbr::ListViewModel& tracks);

    /// Applies the change of parameter `tag` to `targets` in their order and, for what an album's tracks
    /// share, to all tracks of the list.
    void apply(std::int32_t tag, const Tracks& targets);

private:
    using Rule = std::function<void(TrackEditRules& rules, TrackItem& track)>;
    struct Row {
        std::int32_t tag;
        Rule rule;
    };

    /// The parameters' values when the user changed one of them: every target gets the same.
    struct Values {
        std::string albumTitle;
        std::string albumArtist;
        std::string genre;
        std::int32_t trackNumber = 1;
        std::string songTitle;
        std::string songArtist;
    };

    static const std::vector<Row>& singlesRows();
    static const std::vector<Row>& albumRows();
    static const std::vector<Row>& commonRows();
    static const std::vector<Row>& wholeAlbumRows();
    void run(const std::vector<Row>& rows, std::int32_t tag, TrackItem& track);

    void singlesAlbumTitle(TrackItem& track);
    void singlesAlbumArtist(TrackItem& track);
    void singlesGenre(TrackItem& track);
    void singlesTrackNumber(TrackItem& track);
    void albumTrackNumber(TrackItem& track) const;
    void songTitle(TrackItem& track);
    void songArtist(TrackItem& track);
    void wholeAlbumTitle(TrackItem& track);
    void wholeAlbumArtist(TrackItem& track);
    void wholeAlbumGenre(TrackItem& track);

    bool isSingles() const { return m_mode == UploadMode::kSingles; }
    void set(std::int32_t tag, const std::string& value);
    void show(std::int32_t tag, bool missing);
    void showMarks(std::int32_t markTag, const Tracks& targets);
    /// The mark of value `tag` goes when the record has that value now.
    void clearMark(TrackFields& record, std::int32_t tag);

    xbr::Component& m_editor;
    UploadMode m_mode;
    const xbr::ListViewModel& m_tracks;
    Values m_values;
    std::vector<std::int32_t> m_cleared; ///< parameters of marks that were taken away and have to be shown so
};

} // namespace brindlex
