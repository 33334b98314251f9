#pragma once

#include "framework/abi/webservice.h"
#include "ui/tracks/trackitem.h"

namespace brindlex {

/// What the service's answer to an upload means: kDone, kMissingInformation or kFailed.
TrackUploadState judgeReply(xbr::IWebRequest& request);

} // namespace brindlex
