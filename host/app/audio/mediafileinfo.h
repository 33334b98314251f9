#pragma once

#include "framework/abi/hostclasses.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/object.h"

namespace xbr::host {

/// Reads tags with TagLib: of WAV files the ID3v2 and the INFO chunk, of others what TagLib knows. A file
/// whose bytes are no audio that we know is refused, whatever its name says; damaged tags are left out.
class MediaFileInfo final : public Object<IMediaFileInfo> {
public:
    Result open(Text url) noexcept override;
    Result getAttributes(IAttributes* out) noexcept override;

private:
    Ref<Attributes> m_attributes; ///< empty while no file is open
};

} // namespace xbr::host
