#pragma once

#include "framework/abi/controller.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/object.h"
#include "release/trackmetadata.h"

#include <cstdint>
#include <string>

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
/// Properties for the host: "title", "file" (a URL), "enabled", "uploading", "progress", "state".
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

} // namespace brindlex
