#include "ui/tracks/trackpropertycomponent.h"

#include "framework/support/objects/text.h"
#include "release/genrecatalogue.h"
#include "ui/tracks/requiredfields.h"
#include "ui/tracks/trackeditrules.h"
#include "ui/tracks/trackitem.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr std::int64_t kLastTrackNumber = 10000;

/// The genre menu; a blank stands for no genre, as menus do not show an empty line.
std::vector<std::string> genreChoices() {
    std::vector<std::string> choices = genreNames();
    for (std::string& choice : choices) {
        if (choice.empty()) {
            choice = " ";
        }
    }
    return choices;
}

/// The first track of an album speaks for all of them.
void beginAlbum(TrackFields& first) {
    if (!first.albumGenre.empty()) {
        first.primaryGenre = first.albumGenre;
    } else if (!first.singlesGenre.empty()) {
        first.primaryGenre = first.singlesGenre;
    }
    first.albumTitle = first.albumModeTitle;
}

void followAlbum(TrackFields& record, const TrackFields& first) {
    record.trackNumber = record.albumTrackNumber;
    record.albumTitle = first.albumTitle;
    record.albumArtist = first.albumArtist;
    record.primaryGenre = first.primaryGenre;
}

void standAlone(TrackFields& record) {
    record.albumTitle = record.songTitle;
    record.albumArtist = record.songArtist;
    if (!record.singlesGenre.empty()) {
        record.primaryGenre = record.singlesGenre;
    } else if (!record.albumGenre.empty()) {
        record.primaryGenre = record.albumGenre;
    }
    record.trackNumber = 1;
}

} // namespace

TrackPropertyComponent::TrackPropertyComponent(xbr::Ref<xbr::ListViewModel> tracks)
    : Component("TrackProperties"),
      m_tracks(std::move(tracks)) {
    using Kind = xbr::ParameterKind;
    addParameter(Kind::kText, kAlbumTitle, "albumTitle");
    addParameter(Kind::kText, kAlbumArtist, "albumArtist");
    addParameter(Kind::kList, kPrimaryGenre, "primaryGenre").setChoices(genreChoices());
    addParameter(Kind::kInteger, kTrackNumber, "trackNumber", 1, kLastTrackNumber);
    addParameter(Kind::kText, kSongTitle, "songTitle");
    addParameter(Kind::kText, kSongArtist, "songArtist");
    addParameter(Kind::kInteger, kAlbumTitleMissing, "albumTitleMissing");
    addParameter(Kind::kInteger, kAlbumArtistMissing, "albumArtistMissing");
    addParameter(Kind::kInteger, kPrimaryGenreMissing, "primaryGenreMissing");
    addParameter(Kind::kInteger, kSongTitleMissing, "songTitleMissing");
    addParameter(Kind::kInteger, kSongArtistMissing, "songArtistMissing");
    setItem(nullptr);
}

void TrackPropertyComponent::loadParameters(const TrackFields& record) {
    for (const RequiredField& field : kRequiredFields) {
        if (field.valueTag == kPrimaryGenre) {
            getGenreIndex(*parameter(kPrimaryGenre), record.primaryGenre);
        } else {
            parameter(field.valueTag)->set(xbr::textValue(record.*field.value));
        }
        parameter(field.markTag)->set(xbr::boolValue(record.*field.missing));
    }
    parameter(kTrackNumber)->set(xbr::integerValue(record.trackNumber));
}

void TrackPropertyComponent::setItem(TrackItem* item) {
    const auto empty = xbr::make<TrackMetadata>();
    m_updating = true;
    loadParameters(item ? *item->metadata : *empty);
    m_updating = false;
    for (std::int32_t tag = kAlbumTitle; tag <= kSongArtistMissing; ++tag) {
        parameter(tag)->setEnabled(item != nullptr);
    }
    m_hasItem = item != nullptr;
    signalChanged();
}

void TrackPropertyComponent::setMode(UploadMode mode) {
    m_mode = mode;
    m_isInLine = false;
}

void TrackPropertyComponent::clearReady() {
    setReady(false);
}

void TrackPropertyComponent::applyMode() {
    if (countTracks(*m_tracks) == 0) {
        return;
    }
    if (m_mode == UploadMode::kAlbum) {
        beginAlbum(*trackAt(*m_tracks, 0).metadata);
    }
    for (const auto& track : tracksOf(*m_tracks)) {
        bringInLine(*track->metadata);
    }
    m_isInLine = true;
    m_tracks->signalChanged();
    updateReady();
}

void TrackPropertyComponent::trackAdded() {
    if (!m_isInLine) {
        applyMode();
        return;
    }
    TrackFields& record = *trackAt(*m_tracks, countTracks(*m_tracks) - 1).metadata;
    bringInLine(record);
    m_tracks->signalChanged();
    setReady(m_ready || isComplete(record));
}

void TrackPropertyComponent::bringInLine(TrackFields& record) const {
    if (m_mode == UploadMode::kAlbum) {
        followAlbum(record, *trackAt(*m_tracks, 0).metadata);
    } else {
        standAlone(record);
    }
}

void TrackPropertyComponent::validateItem(Marks marks, std::size_t index) {
    TrackItem& item = trackAt(*m_tracks, index);
    setItem(&item);
    for (const RequiredField& field : kRequiredFields) {
        const bool isEmpty = field.valueTag == kPrimaryGenre ? getGenreText(*parameter(kPrimaryGenre)).empty()
                                                             : parameter(field.valueTag)->string().empty();
        bool& missing = (*item.metadata).*field.missing;
        missing = marks == Marks::kSet && (missing || isEmpty);
    }
}

void TrackPropertyComponent::updateReady() {
    bool ready = false;
    for (std::size_t i = 0; !ready && i < countTracks(*m_tracks); ++i) {
        ready = isComplete(*trackAt(*m_tracks, i).metadata);
    }
    setReady(ready);
}

void TrackPropertyComponent::setReady(bool ready) {
    if (m_ready != ready) {
        m_ready = ready;
        signalChanged();
    }
}

Tracks TrackPropertyComponent::editedTracks() const {
    Tracks edited;
    for (const auto& item : m_tracks->selection()) {
        edited.push_back(xbr::Ref<TrackItem>::share(TrackItem::from(*item)));
    }
    const auto focused = xbr::Ref<TrackItem>::share(focusTrack(*m_tracks));
    if (focused && std::find(edited.begin(), edited.end(), focused) == edited.end()) {
        edited.push_back(focused);
    }
    return edited;
}

void TrackPropertyComponent::parameterChanged(xbr::Parameter& parameter) {
    const auto edited = editedTracks();
    if (m_updating || edited.empty()) {
        return;
    }
    const auto self = xbr::Ref<TrackPropertyComponent>::share(this);
    m_isInLine = false;
    TrackEditRules(*this, m_mode, *m_tracks).apply(parameter.tag(), edited);
    m_isInLine = false; // again: who was told of a parameter meanwhile may have added tracks
    m_tracks->signalChanged();
    updateReady();
}

xbr::Result TrackPropertyComponent::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    if (xbr::view(name) == "hasFocusItem") {
        *out = xbr::boolValue(m_hasItem);
        return xbr::kOk;
    }
    return Component::getProperty(name, out);
}

} // namespace brindlex
