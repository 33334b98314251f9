#include "host/app/headless/headlesshost.h"

#include "host/app/modules/modulesearch.h"
#include "host/gui/hostgui.h"
#include "host/security/hostsecurity.h"
#include "host/system/hostsystem.h"

#include <QCoreApplication>
#include <QFile>

namespace xbr::host {

namespace {

std::string moduleToLoad(const std::string& wanted) {
    if (!wanted.empty()) {
        return wanted;
    }
    const QByteArray folder = QFile::encodeName(QCoreApplication::applicationDirPath());
    const auto modules = findModules(folder.toStdString());
    return modules.empty() ? std::string() : modules.front();
}

} // namespace

HeadlessHost::HeadlessHost(const CommandLine& commandLine, Dialogs dialogs)
    : m_modulePath(moduleToLoad(commandLine.module)),
      m_context(commandLine.isJson ? makeJsonOutput() : makeTextOutput()),
      m_coreClasses(m_context.configuration),
      m_consoleClasses(m_context, dialogs),
      m_hostContext(make<HostContext>("xbrhost", XBR_HOST_VERSION)) {
    registerGuiClasses();
    setBrowserAnnouncer([this](std::string_view url) {
        m_context.output->signInAddress(url);
        return true;
    });
    setStoreInterruption(&Interruption::isInterrupted);
    setStoreProblemListener([this](const std::string& words) {
        m_context.hadStoreProblem = true;
        m_context.output->message(words);
    });
}

HeadlessHost::~HeadlessHost() {
    m_panel.reset();
    m_module.reset();
    setStoreProblemListener({});
    setStoreInterruption(nullptr);
    setBrowserAnnouncer({});
    unregisterGuiClasses();
}

bool HeadlessHost::start(std::string& error) {
    if (m_modulePath.empty()) {
        error = "no module was found; name one with --module PATH";
        return false;
    }
    m_module = LoadedModule::load(m_modulePath, *m_hostContext, error);
    if (!m_module) {
        return false;
    }
    m_panel = GadgetPanel::open({}, error);
    return m_panel != nullptr;
}

void HeadlessHost::listenForCallbacks() {
    std::string error;
    if (!m_context.callbacks.start(error)) {
        printError("the browser's answer to a sign-in cannot be received: " + error);
    }
}

} // namespace xbr::host
