#pragma once

#include "host/net/http/transfer.h"

#include <QObject>
#include <QTimer>
#include <curl/curl.h>

#include <map>
#include <memory>
#include <vector>

class QSocketNotifier;

namespace xbr::host {

/// Drives all transfers: libcurl's multi interface on the event loop of the main thread.
class TransferLoop final : public QObject {
public:
    /// Made on first use; ends with the QCoreApplication.
    static TransferLoop& instance();

    /// What to call when the QCoreApplication ends while there is an instance: it ends all transfers, and
    /// then the instance.
    static void setFarewell(void (*farewell)()) { s_farewell = farewell; }

    /// Ends the instance, if there is one. No transfer may be left.
    static void shutDown();

    /// Starts a transfer; it reports from the event loop only. False when libcurl refuses it.
    bool start(Transfer& transfer);

    /// Lets all transfers stand still: nothing is reported until they go on.
    static void hold(bool isHeld);

    /// Ends a transfer without a report.
    void end(std::unique_ptr<Transfer> transfer);

private:
    struct Watch {
        QSocketNotifier* read = nullptr;
        QSocketNotifier* write = nullptr;
        int what = CURL_POLL_NONE; ///< that libcurl waits for
    };

    TransferLoop();
    ~TransferLoop() override;

    void act(curl_socket_t socket);
    void leave();
    void reportFinished();
    void tick();
    void detach(Transfer& transfer);
    void watch(curl_socket_t socket, int what);
    void setNotifier(QSocketNotifier*& slot, curl_socket_t socket, int type, bool wanted);

    static int onSocket(CURL* easy, curl_socket_t socket, int what, void* self, void* perSocket);
    static int onTimer(CURLM* multi, long milliseconds, void* self);

    CURLM* m_multi;
    QTimer m_timer;
    QTimer m_tick;
    std::map<curl_socket_t, Watch> m_watches;
    std::vector<Transfer*> m_transfers;
    std::vector<std::unique_ptr<Transfer>> m_doomed;
    bool m_isHeld = false;
    bool m_insideCurl = false;
    int m_depth = 0; ///< how many calls that may lead to listeners or streams are on the stack

    static TransferLoop* s_instance;
    static void (*s_farewell)();
};

} // namespace xbr::host
