#pragma once

#include "host/net/http/failure.h"
#include "host/net/http/reply.h"
#include "host/net/http/request.h"

#include <curl/curl.h>

#include <chrono>
#include <memory>
#include <string>

namespace xbr::host {

/// How a transfer ended: with a status, or with the reason why there is none.
struct Answer {
    std::int32_t status = 0;
    std::string location; ///< who answered, after redirects
    ReplyHeaders headers;
    Ref<MemoryStream> body; ///< null when there is none
    Problem problem;        ///< why there is none
    std::int64_t sent = 0;  ///< bytes of the body
    bool wholeBodySent = false;
};

/// Hears from a transfer. Called from the event loop, never from within libcurl: it may end and destroy any
/// transfer, the calling one included.
class ITransferListener {
public:
    virtual void onSent(double fraction) = 0;
    virtual void onFinished(Answer outcome) = 0;

protected:
    ~ITransferListener() = default;
};

/// One request on its way: a libcurl handle and what its callbacks work on. TransferLoop drives it.
class Transfer {
public:
    /// How often `onTick` is called.
    static constexpr std::chrono::milliseconds kTick{40};

    static void setIdleLimit(std::chrono::milliseconds limit);

    /// Null when libcurl refuses the request.
    static std::unique_ptr<Transfer> create(Request request, ITransferListener& listener);

    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer();

    CURL* handle() const noexcept { return m_easy; }

    /// Names the socket that the transfer uses.
    curl_socket_t socket() const noexcept { return m_socket; }
    void setSocket(curl_socket_t socket) noexcept { m_socket = socket; }

    /// How many bytes of the body were sent.
    std::int64_t sent() const;

    /// Goes on sending where the body was held back.
    void resume();

    /// Counts the time without a byte. False when it was too long and the transfer must end.
    bool onTick();

    /// Tells the listener how much was sent.
    void reportProgress();

    /// Tells the listener the end; the last call.
    void finish(CURLcode code);

private:
    Transfer(Request request, ITransferListener& listener);

    bool configure();
    bool configureMethod();
    bool configureRedirects();
    bool configureCertificates();
    bool configureCallbacks();
    bool isAnswerWaiting() const;
    Answer outcome(CURLcode code);

    static std::size_t readBody(char* buffer, std::size_t size, std::size_t count, void* self);
    static int seekBody(void* self, curl_off_t offset, int origin);
    static std::size_t takeHeader(char* data, std::size_t size, std::size_t count, void* self);
    static std::size_t takeBody(char* data, std::size_t size, std::size_t count, void* self);

    Request m_request;
    ITransferListener& m_listener;
    CURL* m_easy;
    Reply m_reply;
    Ended m_ended = Ended::kNot;
    std::int64_t m_idleTicksLeft;
    std::int64_t m_idleTicks;
    std::uint64_t m_bytesMoved = 0;
    curl_socket_t m_socket = CURL_SOCKET_BAD;
    bool m_heldBack = false;
};

} // namespace xbr::host
