#pragma once

#include "framework/abi/attributes.h"

namespace xbr {

/// Settings that the host keeps for a module; created by class UID.
struct IConfigurationStore : IObject {
    static constexpr Uid kUid = uid("3ae0371e-9ec5-4b81-a546-120299bb9bef");
    static constexpr Uid kClassUid = uid("ebac1431-f947-427f-93fa-598a2dfd2cea");

    /// Fills `out` with the texts kept under `id`; `title` is for people. `profile` is 0, `mode` 1 (read).
    /// kFalse: nothing is kept under that id; kUnexpected: it cannot be read.
    virtual Result load(IAttributes* out, Text id, Text title, std::int32_t profile,
                        std::int32_t mode) noexcept = 0;
};

/// Reads the tags of media files; created by class UID.
struct IMediaFileInfo : IObject {
    static constexpr Uid kUid = uid("93e54be3-d762-4d63-b2d2-77316b99e0c9");
    static constexpr Uid kClassUid = uid("52c6c595-f406-46e0-ace9-bd7a3420932a");

    /// Reads a local file. kUnexpected: it cannot be read or is no media file; there are no attributes then.
    virtual Result open(Text url) noexcept = 0;

    /// Fills `out` with what the file tells: the texts "Media:Title", "Media:Artist", "Media:Album",
    /// "Media:AlbumArtist", "Media:Genre" and the integer "Media:TrackIndex". What is missing is left out.
    virtual Result getAttributes(IAttributes* out) noexcept = 0;
};

/// Decides whether a join token may be sent to the service; created by class UID.
struct IJoinTokenPermission : IObject {
    static constexpr Uid kUid = uid("0e8a6c1f-0355-4648-9584-cad48e12b171");
    static constexpr Uid kClassUid = uid("e8b41a75-ebc8-4f4a-8857-eee62047ca2b");

    virtual bool isAllowed() noexcept = 0;
};

} // namespace xbr
