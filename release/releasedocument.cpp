#include "release/releasedocument.h"

#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

constexpr std::string_view kVariousArtists = "various artist";

bool isVariousArtists(std::string_view artist) {
    return xbr::foldCase(artist).find(kVariousArtists) != std::string::npos;
}

xbr::Ref<xbr::IAttributeQueue> addQueue(xbr::Attributes& parent, std::string_view name) {
    xbr::Ref<xbr::IAttributeQueue> queue;
    parent.addQueue(xbr::toText(name), queue.out());
    return queue;
}

xbr::Ref<xbr::Attributes> makeArtist(std::string_view name) {
    auto artist = xbr::make<xbr::Attributes>();
    if (!name.empty()) {
        artist->set("name", name);
    }
    return artist;
}

} // namespace

void writeReleaseAttributes(xbr::Attributes& release, const TrackMetadata& record,
                            std::string_view clientId) {
    release.set("external_release_id", "");
    release.set("client_id", clientId);
    if (!record.albumTitle.empty()) {
        release.set("title", record.albumTitle);
    }
    if (isVariousArtists(record.albumArtist)) {
        release.set("various", "true"); // a text: the service does not take a JSON boolean here
    }
    // Artists of the release carry a name only, those of a song a role as well: so the service tells them
    // apart.
    const auto artist = makeArtist(record.albumArtist);
    addQueue(release, "main_artists")->append(xbr::objectValue(artist.get()));
    if (!record.primaryGenre.empty()) {
        release.set("primary_genre", record.primaryGenre);
    }
}

void writeSongAttributes(xbr::Attributes& song, const TrackMetadata& record, std::string_view audioFileName) {
    const auto stem = audioFileName.substr(0, audioFileName.rfind('.'));
    song.set("title", record.songTitle.empty() ? stem : std::string_view(record.songTitle));
    song.set("audio_filename", audioFileName);
    const auto artist = makeArtist(record.songArtist);
    addQueue(*artist, "roles")->append(xbr::textValue("Main Artist"));
    addQueue(song, "artists")->append(xbr::objectValue(artist.get()));
    if (record.trackNumber != 0) {
        song.set("track_number", xbr::integerValue(record.trackNumber));
    }
}

} // namespace brindlex
