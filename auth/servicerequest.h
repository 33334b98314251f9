#pragma once

#include "framework/abi/stream.h"
#include "framework/support/objects/object.h"

#include <string>

namespace brindlex {

/// One request to the service: what is posted, and where.
struct ServiceRequest : public xbr::RefCounted {
    std::string path;            ///< relative to the service's base URL
    xbr::Ref<xbr::IStream> body; ///< the whole body, at its start
    std::string contentType;
};

} // namespace brindlex
