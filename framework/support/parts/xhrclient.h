#pragma once

#include "framework/abi/webservice.h"
#include "framework/support/data/url.h"
#include "framework/support/parts/component.h"

#include <functional>
#include <string>
#include <vector>

namespace xbr {

/// What a completed request's status says (RFC 9110, section 15): done, 200 to 299; or 401, sign in again.
bool isSuccess(const IWebRequest& request);
bool isUnauthorized(const IWebRequest& request);

/// A component that sends one asynchronous HTTP request at a time.
///
/// Property "isBusy"; "propertyChanged" is signalled when it changed.
class XHRClient : public Component {
public:
    /// Receives "onprogress", then "onloadend" or "onabort" exactly once, from the event loop. At completion
    /// the client is not busy any more. The handler may destroy the client.
    using Handler = std::function<void(const IMessage& message, IWebRequest& request)>;

    explicit XHRClient(std::string_view name);
    ~XHRClient() override;

    /// Starts a request with the current credentials. An empty content type sets no header; the body may be
    /// null. False, and nothing happens, while busy or when the request cannot be started.
    bool send(Handler handler, std::string_view method, const Url& url, const Ref<IStream>& body,
              std::string_view contentType);

    /// Aborts the request in flight, if any: the client is free at once, the handler gets "onabort" later.
    void abort();

    /// Ends everything in flight; no handler is called any more. For owners whose handlers end before the
    /// client.
    void cancel();

    bool isBusy() const noexcept { return m_current != nullptr; }

    Result getProperty(Text name, Value* out) noexcept override;

protected:
    void setCredentials(Ref<IWebCredentials> credentials) { m_credentials = std::move(credentials); }

private:
    class Transfer;

    void becomeFree(const Transfer& transfer);
    void forget(const Transfer& transfer);

    Ref<IWebCredentials> m_credentials;
    std::vector<Ref<Transfer>> m_transfers; ///< the current one, and aborted ones that wait for "onabort"
    Transfer* m_current = nullptr;
};

} // namespace xbr
