#pragma once

#include "framework/abi/message.h"
#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/net/http/exchange.h"
#include "host/net/http/transfer.h"
#include "host/net/http/webcredentials.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xbr::host {

/// A message of a request to its handler, with the fraction as its argument when it has one.
class RequestMessage final : public Object<IMessage> {
public:
    /// `name` must be a literal.
    explicit RequestMessage(std::string_view name, std::optional<double> fraction = {})
        : m_name(name),
          m_fraction(fraction) {}

    Text name() const noexcept override { return toText(m_name); }
    std::int32_t countArguments() const noexcept override { return m_fraction ? 1 : 0; }
    Value argument(std::int32_t index) const noexcept override {
        return m_fraction && index == 0 ? floatValue(*m_fraction) : noValue();
    }

private:
    std::string_view m_name;
    std::optional<double> m_fraction;
};

/// One HTTP request of a module. Its messages carry it as their subject.
class WebRequest final : public Object<IWebRequest, ISubject>, private ITransferListener {
public:
    ~WebRequest() override;

    /// kInvalidArgument: not a method's name, not an http or https URL, a URL with a user name or password
    /// inside, or credentials that are not set or not of this library.
    Result open(Text method, Text url, IWebCredentials* credentials) noexcept override;

    /// kInvalidArgument also for the headers of the transport, Content-Length for example.
    Result setHeader(Text name, Text value) noexcept override;

    /// kInvalidArgument: the body cannot be measured by seeking, or comes with the method HEAD.
    Result send(IStream* body, IObserver* handler) noexcept override;

    Result abort() noexcept override;
    bool isBusy() const noexcept override { return m_state == State::kInFlight; }
    std::int32_t status() const noexcept override { return m_answer.status; }
    Result getResponseBody(IStream** out) noexcept override;
    Result getErrorText(IString** out) noexcept override;

    /// Ends all requests that still owe a message, without one.
    static void endAll();

    /// Aborts the requests in flight that carry a body with credentials.
    static void abortUploads();

    /// Names who hears of requests (null: nobody).
    static void setListener(ExchangeListener* listener);

private:
    enum class State {
        kNew,
        kOpened,
        kInFlight, ///< owes "onloadend"
        kAborted,  ///< owes "onabort"
        kDone,
    };

    void setState(State state);
    RequestHeaders buildHeaders() const;
    void endTransfer();
    void endSilently();
    void deliverAbort();
    void tell(IObserver* handler, IMessage& message);
    void note(const Answer& answer);
    void tellEnd();

    void onSent(double fraction) override;
    void onFinished(Answer answer) override;

    State m_state = State::kNew;
    std::string m_method;
    std::string m_url;
    std::string m_host;
    std::vector<std::pair<std::string, std::string>> m_headers;
    Ref<WebCredentials> m_credentials;
    Exchange m_exchange; ///< as it is told of
    Ref<IObserver> m_handler;
    std::unique_ptr<Transfer> m_transfer;
    std::shared_ptr<WebRequest*> m_pendingAbort; ///< gone when the message is no longer owed
    double m_lastSent = 0;
    Answer m_answer;
};

} // namespace xbr::host
