#include "host/app/process/interruption.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace xbr::host {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

// Lock-free, so that the signal handler may write it and other threads may read it.
std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);
volatile std::sig_atomic_t pipeEnd = -1;

void takeSignal(int) {
    const int error = errno; // the code that is interrupted may be about to read it
    interrupted = true;
    const char byte = 0;
    // A full pipe has woken the loop already.
    [[maybe_unused]] const auto written = write(static_cast<int>(pipeEnd), &byte, 1);
    errno = error;
}

void install(void (*handler)(int), int flags) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    sigemptyset(&action.sa_mask);
    for (const int number : kSignals) {
        sigaction(number, &action, nullptr);
    }
}

} // namespace

Interruption::Interruption() {
    if (pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) == 0) {
        pipeEnd = m_pipe[1];
        m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { tell(); });
    }
    install(&takeSignal, static_cast<int>(SA_RESETHAND | SA_RESTART));
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ignore, nullptr); // a reader of our output that went away must not end the clean-up
}

Interruption::~Interruption() {
    install(SIG_DFL, 0);
    m_notifier.reset();
    close(m_pipe[0]);
    close(m_pipe[1]);
}

bool Interruption::isInterrupted() noexcept {
    return interrupted;
}

Interruption::Handle Interruption::subscribe(std::function<void()> handler) {
    const int number = m_nextHandler++;
    m_handlers.emplace(number, std::move(handler));
    return Handle(this, [number](void* self) { static_cast<Interruption*>(self)->m_handlers.erase(number); });
}

void Interruption::tell() {
    char bytes[16];
    while (read(m_pipe[0], bytes, sizeof(bytes)) > 0) {
    }
    std::vector<int> numbers;
    for (const auto& [number, handler] : m_handlers) {
        numbers.push_back(number);
    }
    // Handlers may come and go while they are told.
    for (const int number : numbers) {
        const auto found = m_handlers.find(number);
        if (found != m_handlers.end()) {
            const auto handler = found->second;
            handler();
        }
    }
}

} // namespace xbr::host
