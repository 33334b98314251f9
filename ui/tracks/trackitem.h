#pragma once

#include "framework/abi/controller.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/object.h"
#include "framework/support/parts/listviewmodel.h"
#include "release/trackmetadata.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindlex {

/// What became of a track's upload; the numbers are what hosts see as "state".
enum class TrackUploadState : std::int32_t {
    kNone = 0, ///< not sent yet, or to be sent again
    kDone = 1,
    kFailed = 2,
    kMissingInformation = 3,
};

/// One track of the list.
///
/// Properties for the host: "title", "file" (a URL), "enabled", "uploading", "progress", "state", and what
/// the editor shows of it by the names of its parameters ("songTitle").
class TrackItem final : public xbr::Object<xbr::IPropertySource> {
public:
    /// The class itself, for telling a ready item from other objects that are handed in.
    static constexpr xbr::Uid kClassUid = xbr::uid("0647a41b-f904-4273-ba49-49fbc202c91d");

    TrackItem(std::string itemTitle, xbr::Url location, xbr::Ref<TrackMetadata> record);

    /// The item behind an object; null when it is another kind of object. Borrowed.
    static TrackItem* from(xbr::IObject& object);

    xbr::Result queryInterface(const xbr::Uid& interfaceUid, void** out) noexcept override;
    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;
    xbr::Result setProperty(xbr::Text name, const xbr::Value& value) noexcept override;

    std::string title;
    xbr::Url file;
    xbr::Ref<TrackMetadata> metadata;
    bool enabled = false;
    bool uploading = false;
    double progress = 0.0; ///< 0.0 to 1.0
    TrackUploadState state = TrackUploadState::kNone;

private:
    std::string m_location;
};

/// The list's items as tracks. A list model of the track list holds nothing else.
TrackItem& trackAt(const xbr::ListViewModel& model, std::size_t index);

inline std::size_t countTracks(const xbr::ListViewModel& model) {
    return model.items().size();
}

/// The track with the focus; null for none.
TrackItem* focusTrack(const xbr::ListViewModel& model);

using Tracks = std::vector<xbr::Ref<TrackItem>>;

/// All tracks in their order; they stay when the list changes.
Tracks tracksOf(const xbr::ListViewModel& model);

} // namespace brindlex
