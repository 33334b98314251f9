#pragma once

#include "framework/abi/publisher.h"
#include "framework/support/objects/object.h"

namespace brindlex {

/// The publish menu entry "Upload to Brindlex": makes tracks of rendered songs and shows the panel.
class UploadPublisher final : public xbr::Object<xbr::IPublisher> {
public:
    xbr::Result acceptFileType(xbr::IFileType** type) noexcept override;
    xbr::Result publish(xbr::IObjectIterator* items) noexcept override;
};

} // namespace brindlex
