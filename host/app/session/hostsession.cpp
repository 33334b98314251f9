#include "host/app/session/hostsession.h"

#include "framework/support/objects/text.h"
#include "host/gui/hostgui.h"
#include "host/system/hostsystem.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cassert>
#include <chrono>
#include <utility>

namespace xbr::host {

namespace {

/// Name and version of this program, for modules.
class HostContext final : public Object<IHostContext> {
public:
    std::uint32_t borderVersion() const noexcept override { return kBorderVersion; }
    Text hostName() const noexcept override { return toText("xbrhost"); }
    Text hostVersion() const noexcept override { return toText(XBR_HOST_VERSION); }
};

} // namespace

HostSession::HostSession(FrontEnd& front, SessionOptions options)
    : m_front(front),
      m_options(std::move(options)),
      m_settings(std::make_shared<ConfigurationReport>()),
      m_classes(front, *this, m_activity, m_settings),
      m_context(make<HostContext>()),
      m_interrupted(m_interruption.subscribe([this] { m_activity.endAll(); })) {
    registerGuiClasses();
    setBrowserAnnouncer([this](std::string_view url) {
        m_browserOpened = std::chrono::steady_clock::now().time_since_epoch().count();
        return m_front.announceBrowser(url);
    });
    setBrowserProblemListener(
        [this](const std::string& url, const std::string& reason) { m_front.browserFailed(url, reason); });
    m_activity.setKeyringWaiter(&front);
}

HostSession::~HostSession() {
    setState(State::kClosing);
    m_interrupted.reset();
    closePanels();
    while (!m_modules.empty()) {
        m_modules.pop_back();
    }
    m_activity.setKeyringWaiter(nullptr);
    setBrowserProblemListener({});
    setBrowserAnnouncer({});
    unregisterGuiClasses();
}

bool HostSession::isBrowserAwaited() const {
    return std::any_of(m_panels.begin(), m_panels.end(), [](const auto& panel) {
        return panel->clientState() == ClientState::kAwaitingBrowser;
    });
}

std::optional<std::int64_t> HostSession::waitsForBrowserSince() {
    return isBrowserAwaited() ? std::optional(m_browserOpened) : std::nullopt;
}

void HostSession::urlCame() {
    if (m_state == State::kRunning) {
        m_front.callbackCame();
    }
}

void HostSession::setState(State state) {
    assert(state > m_state);
    m_state = state;
}

std::vector<std::string> HostSession::modulesToLoad() const {
    if (!m_options.module.empty()) {
        return {m_options.module};
    }
    auto found = findModules(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString());
    if (!m_options.isForAllModules && found.size() > 1) {
        found.resize(1);
    }
    return found;
}

std::vector<Problem> HostSession::start() {
    setState(State::kRunning);
    std::vector<Problem> problems;
    for (const std::string& path : modulesToLoad()) {
        auto module = LoadedModule::load(path, *m_context);
        if (module) {
            m_modules.push_back(std::move(*module));
        } else {
            problems.push_back(module.problem());
        }
    }
    if (m_options.takesCallbacks) {
        const auto listening = m_callbacks.start();
        if (!listening) {
            problems.push_back(listening.problem());
        }
    }
    return problems;
}

Outcome<GadgetPanel*> HostSession::openPanel(const GadgetClass& gadget, std::function<void()> show) {
    assert(m_state == State::kRunning);
    auto panel = GadgetPanel::open(gadget, std::move(show));
    if (!panel) {
        return panel.problem();
    }
    m_panels.push_back(std::move(*panel));
    return m_panels.back().get();
}

void HostSession::closePanels() {
    while (!m_panels.empty()) {
        m_panels.pop_back();
    }
}

} // namespace xbr::host
