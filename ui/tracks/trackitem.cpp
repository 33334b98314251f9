#include "ui/tracks/trackitem.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

namespace brindlex {

namespace {

struct NamedText {
    std::string_view name;
    std::string TrackFields::*text;
};

/// By the names of the editor's parameters.
constexpr NamedText kTexts[] = {{"albumTitle", &TrackFields::albumTitle},
                                {"albumArtist", &TrackFields::albumArtist},
                                {"primaryGenre", &TrackFields::primaryGenre},
                                {"songTitle", &TrackFields::songTitle},
                                {"songArtist", &TrackFields::songArtist}};

TrackItem* asTrack(xbr::IObject* object) {
    return static_cast<TrackItem*>(static_cast<xbr::IPropertySource*>(object));
}

} // namespace

TrackItem::TrackItem(std::string itemTitle, xbr::Url location, xbr::Ref<TrackMetadata> record)
    : title(std::move(itemTitle)),
      file(std::move(location)),
      metadata(std::move(record)),
      m_location(file.toString()) {}

TrackItem* TrackItem::from(xbr::IObject& object) {
    void* found = nullptr;
    if (object.queryInterface(kClassUid, &found) != xbr::kOk) {
        return nullptr;
    }
    auto* item = static_cast<TrackItem*>(found);
    item->release(); // the object that was handed in holds it
    return item;
}

xbr::Result TrackItem::queryInterface(const xbr::Uid& interfaceUid, void** out) noexcept {
    return interfaceUid == kClassUid ? answer(this, out)
                                     : xbr::Object<xbr::IPropertySource>::queryInterface(interfaceUid, out);
}

xbr::Result TrackItem::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    const auto wanted = xbr::view(name);
    *out = xbr::noValue();
    if (wanted == "title") {
        *out = xbr::textValue(title);
    } else if (wanted == "file") {
        *out = xbr::textValue(m_location);
    } else if (wanted == "enabled") {
        *out = xbr::boolValue(enabled);
    } else if (wanted == "uploading") {
        *out = xbr::boolValue(uploading);
    } else if (wanted == "progress") {
        *out = xbr::floatValue(progress);
    } else if (wanted == "state") {
        *out = xbr::integerValue(static_cast<std::int64_t>(state));
    } else if (wanted == "trackNumber") {
        *out = xbr::integerValue(metadata->trackNumber);
    } else {
        for (const NamedText& named : kTexts) {
            *out = wanted == named.name ? xbr::textValue((*metadata).*named.text) : *out;
        }
    }
    return out->kind == xbr::ValueKind::kNone ? xbr::kFalse : xbr::kOk;
}

xbr::Result TrackItem::setProperty(xbr::Text, const xbr::Value&) noexcept {
    return xbr::kFalse;
}

TrackItem& trackAt(const xbr::ListViewModel& model, std::size_t index) {
    return *asTrack(model.items()[index].get());
}

Tracks tracksOf(const xbr::ListViewModel& model) {
    Tracks tracks;
    for (std::size_t i = 0; i < countTracks(model); ++i) {
        tracks.push_back(xbr::Ref<TrackItem>::share(&trackAt(model, i)));
    }
    return tracks;
}

TrackItem* focusTrack(const xbr::ListViewModel& model) {
    return asTrack(model.focusItem());
}

} // namespace brindlex
