#include "module/uploadpublisher.h"

#include "client/manager.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "release/audiofile.h"
#include "ui/tracks/tracksources.h"

#include <algorithm>
#include <limits>

namespace brindlex {

namespace {

void readTrackIndex(const xbr::Attributes& media, TrackMetadata& record) {
    const xbr::Value index = media.get("Media:TrackIndex");
    if (index.kind != xbr::ValueKind::kInteger && index.kind != xbr::ValueKind::kFloat) {
        return;
    }
    using Limits = std::numeric_limits<std::int32_t>;
    const auto number = std::clamp<std::int64_t>(xbr::integerOf(index), Limits::min(), Limits::max());
    record.trackNumber = static_cast<std::int32_t>(number);
    record.albumTrackNumber = record.trackNumber;
}

xbr::Ref<TrackItem> makeTrack(xbr::IObject& object, const xbr::Url& file) {
    const auto media = xbr::make<xbr::Attributes>();
    if (const auto source = xbr::query<xbr::IMediaAttributes>(&object)) {
        source->getMediaAttributes(media.get());
    }
    auto record = xbr::make<TrackMetadata>();
    record->songTitle = media->getString("Media:Title");
    record->songArtist = media->getString("Media:Artist");
    record->albumTitle = media->getString("Media:Album");
    record->albumArtist = media->getString("Media:AlbumArtist");
    record->primaryGenre = media->getString("Media:Genre");
    readTrackIndex(*media, *record);
    const std::string title = record->songTitle;
    return xbr::make<TrackItem>(title, file, std::move(record));
}

void showPanel(Manager& manager) {
    if (const auto show = xbr::query<xbr::IShow>(manager.view())) {
        show->show();
    }
}

} // namespace

xbr::Result UploadPublisher::acceptFileType(xbr::IFileType** type) noexcept {
    if (isSupportedExtension(xbr::view((*type)->extension()))) {
        return xbr::kOk;
    }
    xbr::Ref<xbr::IFileType> wav;
    const auto extension = xbr::toText(kAudioExtensions.front());
    if (XBRGetFileTypeRegistry()->getTypeByExtension(extension, wav.out()) != xbr::kOk) {
        XBRGetFileTypeRegistry()->createType(extension, wav.out());
    }
    (*type)->release();
    *type = wav.detach();
    return xbr::kInvalidArgument;
}

xbr::Result UploadPublisher::publish(xbr::IObjectIterator* items) noexcept {
    if (!Manager::current()) {
        return xbr::kUnexpected;
    }
    const auto manager = xbr::Ref<Manager>::share(Manager::current());
    const auto tracks = xbr::make<xbr::ObjectList>();
    std::size_t count = 0;
    xbr::Ref<xbr::IObject> item;
    while (items->next(item.out()) == xbr::kOk) {
        if (const xbr::Url file = audioLocationOf(*item); !file.isEmpty()) {
            tracks->add(xbr::query<xbr::IObject>(makeTrack(*item, file).get()));
            ++count;
        }
    }
    manager->trackList().removeAll();
    if (count > 1) {
        // One song, or none, leaves the mode alone: who works on an album adds to it song by song.
        manager->trackList().prepareMode(UploadMode::kAlbum);
    }
    manager->trackList().add(*tracks);
    showPanel(*manager);
    return xbr::kOk;
}

} // namespace brindlex
