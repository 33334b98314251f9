#include "ui/tracks/trackpropertycomponent.h"

#include "framework/support/objects/text.h"
#include "release/genrecatalogue.h"
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
void beginAlbum(TrackMetadata& first) {
    if (!first.albumGenre.empty()) {
        first.primaryGenre = first.albumGenre;
    } else if (!first.singlesGenre.empty()) {
        first.primaryGenre = first.singlesGenre;
    }
    first.albumTitle = first.albumModeTitle;
}

void followAlbum(TrackMetadata& record, const TrackMetadata& first) {
    record.trackNumber = record.albumTrackNumber;
    record.albumTitle = first.albumTitle;
    record.albumArtist = first.albumArtist;
    record.primaryGenre = first.primaryGenre;
}

void standAlone(TrackMetadata& record) {
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

void TrackPropertyComponent::loadParameters(const TrackMetadata& record) {
    parameter(kAlbumTitle)->set(xbr::textValue(record.albumTitle));
    parameter(kAlbumArtist)->set(xbr::textValue(record.albumArtist));
    getGenreIndex(*parameter(kPrimaryGenre), record.primaryGenre);
    parameter(kTrackNumber)->set(xbr::integerValue(record.trackNumber));
    parameter(kSongTitle)->set(xbr::textValue(record.songTitle));
    parameter(kSongArtist)->set(xbr::textValue(record.songArtist));
    parameter(kAlbumTitleMissing)->set(xbr::integerValue(record.albumTitleMissing ? 1 : 0));
    parameter(kAlbumArtistMissing)->set(xbr::integerValue(record.albumArtistMissing ? 1 : 0));
    parameter(kPrimaryGenreMissing)->set(xbr::integerValue(record.primaryGenreMissing ? 1 : 0));
    parameter(kSongTitleMissing)->set(xbr::integerValue(record.songTitleMissing ? 1 : 0));
    parameter(kSongArtistMissing)->set(xbr::integerValue(record.songArtistMissing ? 1 : 0));
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
    m_settled = {};
}

void TrackPropertyComponent::clearReady() {
    m_ready = false;
    m_settled = {};
}

void TrackPropertyComponent::applyMode() {
    const auto count = countTracks(*m_tracks);
    if (count == 0) {
        return;
    }
    TrackMetadata& first = *trackAt(*m_tracks, 0).metadata;
    if (m_settled.mode == 0) {
        m_settled.ready = 0;
        if (m_mode == UploadMode::kAlbum) {
            beginAlbum(first);
        }
    }
    for (; m_settled.mode < count; ++m_settled.mode) {
        TrackMetadata& record = *trackAt(*m_tracks, m_settled.mode).metadata;
        if (m_mode == UploadMode::kAlbum) {
            followAlbum(record, first);
        } else {
            standAlone(record);
        }
    }
    m_tracks->signalChanged();
    updateReady();
}

void TrackPropertyComponent::validateItem(Marks marks, std::size_t index) {
    TrackItem& item = trackAt(*m_tracks, index);
    setItem(&item);
    TrackMetadata& record = *item.metadata;
    const auto mark = [&](bool& missing, const std::string& value) {
        missing = marks == Marks::kSet && (missing || value.empty());
    };
    mark(record.albumTitleMissing, parameter(kAlbumTitle)->string());
    mark(record.albumArtistMissing, parameter(kAlbumArtist)->string());
    mark(record.primaryGenreMissing, getGenreText(*parameter(kPrimaryGenre)));
    mark(record.songTitleMissing, parameter(kSongTitle)->string());
    mark(record.songArtistMissing, parameter(kSongArtist)->string());
}

void TrackPropertyComponent::updateReady() {
    bool ready = m_settled.ready > 0 && m_ready;
    for (auto i = m_settled.ready; !ready && i < countTracks(*m_tracks); ++i) {
        ready = trackAt(*m_tracks, i).metadata->isComplete();
    }
    m_settled.ready = countTracks(*m_tracks);
    if (m_ready != ready) {
        m_ready = ready;
        signalChanged();
    }
}

std::vector<xbr::Ref<TrackItem>> TrackPropertyComponent::editedTracks() const {
    std::vector<xbr::Ref<TrackItem>> edited;
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
    m_settled = {};
    TrackEditRules(*this, m_mode, *m_tracks).apply(parameter.tag(), edited);
    m_settled = {}; // again: who was told of a parameter meanwhile may have added tracks
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
