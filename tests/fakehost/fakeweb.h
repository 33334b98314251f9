#pragma once

#include "framework/abi/download.h"
#include "framework/abi/feed.h"
#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fakehost {

/// One request as it went out.
struct SentRequest {
    std::string method;
    std::string url;
    std::map<std::string, std::string> headers; ///< with "Authorization" when there were credentials
    std::string body;
};

class FakeWebRequest;

/// Keeps every request; tests answer them.
class FakeWebService final : public xbr::Object<xbr::IWebService, xbr::IDownloadService, xbr::IFeedReader> {
public:
    xbr::Result createCredentials(xbr::IWebCredentials** out) noexcept override;
    xbr::Result createRequest(xbr::IWebRequest** out) noexcept override;
    xbr::Result createTask(xbr::Text url, xbr::IDownloadTask** out) noexcept override;
    xbr::Result readFeed(xbr::IStream* stream, xbr::Text location, xbr::Text mimeType,
                         xbr::IFeed** out) noexcept override;

    /// Completes the request in flight with "onloadend" and runs what follows from it.
    void answer(std::int32_t status, std::string body = {});

    /// Sends "onprogress" for the request in flight.
    void progress(const xbr::Value& fraction);

    /// The host ends the request in flight: "onabort" follows.
    void abortInFlight();

    bool isInFlight() const { return m_inFlight != nullptr; }

    std::vector<SentRequest> sent;
    bool refusesRequests = false; ///< `send` fails

private:
    friend class FakeWebRequest;
    FakeWebRequest* m_inFlight = nullptr;
};

} // namespace fakehost
