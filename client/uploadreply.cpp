#include "client/uploadreply.h"

#include "framework/support/data/attributes.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/parts/xhrclient.h"

namespace brindlex {

namespace {

// The service tells a missing property by this text only; there is no code for it.
constexpr std::string_view kMissingProperty = "did not contain a required property";

bool tellsMissingProperty(xbr::IWebRequest& request) {
    xbr::Ref<xbr::IStream> body;
    if (request.getResponseBody(body.out()) != xbr::kOk || !xbr::rewind(*body)) {
        return false;
    }
    const auto reply = xbr::readJson(*body);
    return reply && reply->getString("errors").find(kMissingProperty) != std::string::npos;
}

} // namespace

TrackUploadState judgeReply(xbr::IWebRequest& request) {
    if (xbr::isSuccess(request)) {
        return TrackUploadState::kDone;
    }
    return tellsMissingProperty(request) ? TrackUploadState::kMissingInformation : TrackUploadState::kFailed;
}

} // namespace brindlex
