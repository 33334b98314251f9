#pragma once

#include "framework/abi/download.h"
#include "framework/abi/feed.h"
#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"

namespace xbr::host {

class WebService final : public Object<IWebService, IDownloadService, IFeedReader> {
public:
    Result createCredentials(IWebCredentials** out) noexcept override;
    Result createRequest(IWebRequest** out) noexcept override;
    Result createTask(Text url, IDownloadTask** out) noexcept override;
    Result readFeed(IStream* stream, Text location, Text mimeType, IFeed** out) noexcept override;
};

} // namespace xbr::host
