#include "host/net/http/transferloop.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QSocketNotifier>

#include <algorithm>
#include <utility>

namespace xbr::host {

TransferLoop* TransferLoop::s_instance = nullptr;
void (*TransferLoop::s_farewell)() = nullptr;

TransferLoop& TransferLoop::instance() {
    if (!s_instance) {
        s_instance = new TransferLoop();
        qAddPostRoutine(s_farewell);
    }
    return *s_instance;
}

void TransferLoop::shutDown() {
    TransferLoop* loop = std::exchange(s_instance, nullptr);
    if (!loop) {
        return;
    }
    qRemovePostRoutine(s_farewell);
    if (loop->m_depth == 0) {
        delete loop;
        return;
    }
    // A handler that the loop itself has called wants its end: `leave` deletes it when that has returned.
    loop->m_timer.stop();
    loop->m_tick.stop();
    for (const auto& [socket, watch] : loop->m_watches) {
        loop->watch(socket, CURL_POLL_NONE);
    }
}

TransferLoop::TransferLoop() {
    curl_global_init(CURL_GLOBAL_DEFAULT);
    m_multi = curl_multi_init();
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETFUNCTION, &TransferLoop::onSocket);
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERFUNCTION, &TransferLoop::onTimer);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERDATA, this);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_tick.setInterval(Transfer::kTick);
    connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT); });
    connect(&m_tick, &QTimer::timeout, this, [this] { tick(); });
}

TransferLoop::~TransferLoop() {
    m_doomed.clear();
    curl_multi_cleanup(m_multi);
    curl_global_cleanup();
}

bool TransferLoop::start(Transfer& transfer) {
    if (curl_multi_add_handle(m_multi, transfer.handle()) != CURLM_OK) {
        return false;
    }
    m_transfers.push_back(&transfer);
    if (!m_tick.isActive()) {
        m_tick.start();
    }
    return true;
}

void TransferLoop::hold(bool isHeld) {
    if (!s_instance || s_instance->m_isHeld == isHeld) {
        return;
    }
    s_instance->m_isHeld = isHeld;
    for (const auto& [socket, watch] : s_instance->m_watches) {
        s_instance->watch(socket, watch.what);
    }
    if (!isHeld) {
        s_instance->m_timer.start(0); // it may have run out meanwhile
    }
}

void TransferLoop::end(std::unique_ptr<Transfer> transfer) {
    if (m_insideCurl) {
        // The stream of a body called us from within libcurl, which still works on the handle.
        std::erase(m_transfers, transfer.get());
        m_doomed.push_back(std::move(transfer));
        return;
    }
    detach(*transfer);
}

void TransferLoop::detach(Transfer& transfer) {
    std::erase(m_transfers, &transfer);
    curl_multi_remove_handle(m_multi, transfer.handle());
    if (m_transfers.empty()) {
        m_tick.stop();
    }
}

void TransferLoop::act(curl_socket_t socket) {
    if (m_isHeld) {
        return;
    }
    if (m_insideCurl) {
        // The stream of a body runs an event loop of its own. What is ready now will still be ready
        // afterwards, but the timer has to be wound again.
        if (socket == CURL_SOCKET_TIMEOUT) {
            m_timer.start(Transfer::kTick);
        }
        return;
    }
    int running = 0;
    ++m_depth;
    {
        const QScopedValueRollback inside(m_insideCurl, true);
        // Without a direction libcurl looks itself, at both: told of "writable" alone it would go on sending
        // and fail on a connection whose early answer is there to be read.
        curl_multi_socket_action(m_multi, socket, 0, &running);
        for (Transfer* transfer : m_transfers) {
            transfer->resume();
        }
    }
    for (const auto& transfer : std::exchange(m_doomed, {})) {
        detach(*transfer);
    }
    reportFinished();
    leave();
}

void TransferLoop::leave() {
    if (--m_depth == 0 && s_instance != this) {
        deleteLater();
    }
}

void TransferLoop::reportFinished() {
    int left = 0;
    while (const CURLMsg* message = s_instance == this ? curl_multi_info_read(m_multi, &left) : nullptr) {
        Transfer* transfer = nullptr;
        const CURLcode code = message->data.result;
        curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &transfer);
        detach(*transfer);
        transfer->finish(code);
    }
}

void TransferLoop::tick() {
    if (m_insideCurl || m_isHeld) {
        return;
    }
    ++m_depth;
    // Listeners may end any transfer, and start new ones.
    const auto present = m_transfers;
    for (Transfer* transfer : present) {
        if (std::find(m_transfers.begin(), m_transfers.end(), transfer) == m_transfers.end()) {
            continue;
        }
        if (transfer->onTick()) {
            transfer->reportProgress();
        } else {
            detach(*transfer);
            transfer->finish(CURLE_OPERATION_TIMEDOUT);
        }
    }
    leave();
}

void TransferLoop::watch(curl_socket_t socket, int what) {
    Watch& watch = m_watches[socket];
    watch.what = what;
    const bool isRead = what == CURL_POLL_IN || what == CURL_POLL_INOUT;
    const bool isWritten = what == CURL_POLL_OUT || what == CURL_POLL_INOUT;
    setNotifier(watch.read, socket, QSocketNotifier::Read, isRead && !m_isHeld);
    setNotifier(watch.write, socket, QSocketNotifier::Write, isWritten && !m_isHeld);
}

void TransferLoop::setNotifier(QSocketNotifier*& slot, curl_socket_t socket, int type, bool wanted) {
    if (wanted && !slot) {
        slot = new QSocketNotifier(socket, static_cast<QSocketNotifier::Type>(type), this);
        connect(slot, &QSocketNotifier::activated, this, [this, socket] { act(socket); });
    }
    if (slot) {
        slot->setEnabled(wanted);
    }
}

int TransferLoop::onSocket(CURL* easy, curl_socket_t socket, int what, void* self, void*) {
    auto& loop = *static_cast<TransferLoop*>(self);
    loop.watch(socket, what);
    Transfer* transfer = nullptr;
    if (curl_easy_getinfo(easy, CURLINFO_PRIVATE, &transfer) == CURLE_OK && transfer) {
        if (what != CURL_POLL_REMOVE) {
            transfer->setSocket(socket);
        } else if (transfer->socket() == socket) { // a new socket may be announced before the old one goes
            transfer->setSocket(CURL_SOCKET_BAD);
        }
    }
    if (what == CURL_POLL_REMOVE) {
        // Later: this may be the very notifier that is calling.
        const Watch watch = loop.m_watches[socket];
        loop.m_watches.erase(socket);
        for (QSocketNotifier* notifier : {watch.read, watch.write}) {
            if (notifier) {
                notifier->deleteLater();
            }
        }
    }
    return 0;
}

int TransferLoop::onTimer(CURLM*, long milliseconds, void* self) {
    QTimer& timer = static_cast<TransferLoop*>(self)->m_timer;
    if (milliseconds < 0) {
        timer.stop();
    } else {
        timer.start(std::chrono::milliseconds(milliseconds));
    }
    return 0;
}

} // namespace xbr::host
