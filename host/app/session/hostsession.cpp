#include "host/app/session/hostsession.h"

#include "framework/support/objects/text.h"
#include "host/gui/hostgui.h"
#include "host/security/hostsecurity.h"
#include "host/system/hostsystem.h"

#include <QCoreApplication>
#include <QFile>

#include <cassert>
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
      m_classes(front, *this, m_settings),
      m_context(make<HostContext>()),
      m_interrupted(m_interruption.subscribe([this] { m_activity.endAll(); })) {
    registerGuiClasses();
    setBrowserAnnouncer([this](std::string_view url) { return m_front.announceBrowser(url); });
    setStoreInterruption(&Interruption::isInterrupted);
    setStoreProblemListener([this](const std::string& words) {
        m_front.storeFailed({Fault::kNotWritable, {}, 0, words, {}, {}});
    });
}

HostSession::~HostSession() {
    setState(State::kClosing);
    m_interrupted.reset();
    m_callbacks.setUrlListener({});
    closePanels();
    while (!m_modules.empty()) {
        m_modules.pop_back();
    }
    setStoreProblemListener({});
    setStoreInterruption(nullptr);
    setBrowserAnnouncer({});
    unregisterGuiClasses();
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
        m_callbacks.setUrlListener([this] { m_front.callbackCame(); });
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
