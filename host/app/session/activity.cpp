#include "host/app/session/activity.h"

#include "host/system/hostsystem.h"

#include <algorithm>

namespace xbr::host {

Activity::Run::Run(Activity& activity, Kind kind, std::function<void()> end, IProgress* progress)
    : m_activity(&activity),
      m_kind(kind == Kind::kPreparing && activity.isOpen(Kind::kRendering) ? Kind::kRendering : kind),
      m_isIndicator(progress != nullptr),
      m_entry(activity.m_runs.insert(activity.m_runs.end(), {m_kind, std::move(end)})) {
    if (m_isIndicator) {
        setWorkProgress(progress);
    }
    m_activity->tell([this](Watcher& watcher) { watcher.began(m_kind); });
}

Activity::Run::~Run() {
    if (m_isIndicator) {
        setWorkProgress(nullptr);
    }
    m_activity->m_runs.erase(m_entry);
    m_activity->tell([this](Watcher& watcher) { watcher.ended(m_kind, m_isCancelled); });
    m_activity->askForQuiet();
}

void Activity::Run::progressed(double fraction, const std::string& what) {
    m_activity->tell([&](Watcher& watcher) { watcher.workProgressed(m_kind, fraction, what); });
}

Activity::Activity() {
    setExchangeListener(this);
    setFileProblemListener([this](const Problem& problem) {
        tell([&problem](Watcher& watcher) { watcher.fileFailed(problem); });
    });
    setQuietListener([this] { look(); });
    setStoreListener(this);
}

Activity::~Activity() {
    setStoreListener(nullptr);
    setQuietListener({});
    setFileProblemListener({});
    setExchangeListener(nullptr);
}

Activity::Handle Activity::watch(Watcher& watcher) {
    m_watchers.push_back(&watcher);
    return Handle(&watcher, [this](void* gone) { std::erase(m_watchers, static_cast<Watcher*>(gone)); });
}

template <class Tell>
void Activity::tell(const Tell& tellOne) {
    const auto watchers = m_watchers; // a copy: they may come and go while they are told
    for (Watcher* watcher : watchers) {
        if (std::find(m_watchers.begin(), m_watchers.end(), watcher) != m_watchers.end()) {
            tellOne(*watcher);
        }
    }
}

bool Activity::isOpen(Kind kind) const {
    return std::any_of(m_runs.begin(), m_runs.end(), [kind](const auto& run) { return run.first == kind; });
}

bool Activity::isQuiet() const {
    return m_runs.empty() && m_exchanges == 0 && !hasPostedMessages();
}

void Activity::began(const Exchange& exchange) {
    ++m_exchanges;
    tell([&exchange](Watcher& watcher) { watcher.exchangeBegan(exchange); });
}

void Activity::progressed(const Exchange& exchange) {
    tell([&exchange](Watcher& watcher) { watcher.exchangeProgressed(exchange); });
}

void Activity::ended(const Exchange& exchange) {
    m_exchanges = std::max(m_exchanges - 1, 0); // one that is older than this object was not counted
    tell([&exchange](Watcher& watcher) { watcher.exchangeEnded(exchange); });
    askForQuiet();
}

bool Activity::storeWaits(bool isForUser) {
    if (!m_keyring) {
        holdPostedMessages(true);
        holdRequests(true);
        m_isKeyringGivenUp = m_isEnding;
        m_keyring.emplace(*this, Kind::kKeyring, [this] { m_isKeyringGivenUp = true; });
    }
    return (!m_waiter || m_waiter->keyringWaits(isForUser)) && !m_isKeyringGivenUp;
}

void Activity::storeAnswered(StoreOperation operation, StoreResult result) {
    if (m_keyring) {
        if (m_waiter) {
            m_waiter->keyringAnswered();
        }
        m_keyring.reset();
        holdRequests(false);
        holdPostedMessages(false);
    }
    if (operation == StoreOperation::kFind) {
        m_lastFound = result;
    }
    tell([&](Watcher& watcher) { watcher.storeAnswered(operation, result); });
}

void Activity::askForQuiet() {
    if (m_isLookDue) {
        return;
    }
    m_isLookDue = true;
    // Later: what has just ended may be one step of a call of a module that goes on.
    QMetaObject::invokeMethod(
        &m_loop,
        [this] {
            m_isLookDue = false;
            look();
        },
        Qt::QueuedConnection);
}

void Activity::look() {
    if (m_runs.empty() && !hasPostedMessages()) {
        tell([](Watcher& watcher) { watcher.becameQuiet(); });
    }
}

void Activity::end(std::optional<Kind> kind) {
    // A copy: runs may come to their end while they are asked to.
    std::vector<std::function<void()>> ends;
    for (auto run = m_runs.rbegin(); run != m_runs.rend(); ++run) {
        if (run->first == kind.value_or(run->first) && run->second) {
            ends.push_back(run->second);
        }
    }
    for (const auto& end : ends) {
        end();
    }
}

void Activity::endAll() {
    m_isEnding = true;
    end({});
}

} // namespace xbr::host
