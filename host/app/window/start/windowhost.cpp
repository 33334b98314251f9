#include "host/app/window/start/windowhost.h"

#include "framework/abi/border.h"
#include "host/app/modules/modulesearch.h"
#include "host/app/window/look/desktop.h"
#include "host/app/window/panels/wording.h"
#include "host/gui/hostgui.h"
#include "host/security/hostsecurity.h"
#include "host/system/hostsystem.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>

namespace xbr::host {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::WindowHost)
};

std::vector<std::string> modulesToLoad(const std::string& wanted) {
    if (!wanted.empty()) {
        return {wanted};
    }
    return findModules(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString());
}

VersionLine lineOf(const LoadedModule& module) {
    const std::uint32_t version = module.borderVersion();
    const QString name = QString::fromStdString(module.path().substr(module.path().rfind('/') + 1));
    return {QString::fromStdString(module.name()),
            Texts::tr("%1, border %2.%3").arg(name).arg(borderMajor(version)).arg(version & 0xFFFFU)};
}

} // namespace

WindowHost::WindowHost()
    : m_coreClasses(m_context.configuration),
      m_windowClasses(m_context),
      m_hostContext(make<HostContext>("xbrhost", XBR_HOST_VERSION)) {
    registerGuiClasses();
    m_window = std::make_unique<MainWindow>(m_context);
    m_opening = make<OpenHandler>([this](const std::string& path) { m_window->addSongs({path}); });
    m_interrupted = m_context.interruption.subscribe([this] { m_window->end(); });
    setStoreInterruption(&Interruption::isInterrupted);
    setStoreProblemListener([this](const std::string& words) {
        // Later: it is told from within a call of a module.
        QMetaObject::invokeMethod(
            m_window.get(),
            [this, words] {
                m_window->showNotice({NoticeKind::kWarning, sentence(words)});
            },
            Qt::QueuedConnection);
    });
}

WindowHost::~WindowHost() {
    m_interrupted.reset();
    m_context.callbacks.setUrlListener({});
    m_opening->close();
    m_window->closePanels();
    while (!m_modules.empty()) {
        m_modules.pop_back();
    }
    m_window.reset();
    setStoreProblemListener({});
    setStoreInterruption(nullptr);
    unregisterGuiClasses();
    removeTemporaryFolder();
}

void WindowHost::loadModules(const std::string& wanted) {
    const auto paths = modulesToLoad(wanted);
    for (const std::string& path : paths) {
        std::string error;
        auto module = LoadedModule::load(path, *m_hostContext, error);
        if (module) {
            m_modules.push_back(std::move(module));
        } else {
            m_problems.push_back(error);
        }
    }
}

void WindowHost::start(const WindowOptions& options) {
    loadModules(options.module);
    std::vector<VersionLine> versions;
    for (const auto& module : m_modules) {
        versions.push_back(lineOf(*module));
    }
    m_window->showModules(std::move(versions));
    if (!m_problems.empty()) {
        m_window->showNotice({NoticeKind::kError,
                              Texts::tr("Songs cannot be published: %1").arg(sentence(m_problems.front()))});
    } else if (m_modules.empty()) {
        m_window->showNotice(
            {NoticeKind::kWarning, Texts::tr("Songs cannot be published: no module was found.")});
    }
    listen();
    m_window->addSongs(options.files);
    m_window->show();
}

void WindowHost::listen() {
    std::string error;
    if (!m_context.callbacks.start(error)) {
        m_window->showNotice(
            {NoticeKind::kWarning,
             Texts::tr("The browser's answer to a sign-in cannot be received: %1").arg(sentence(error))});
    }
    m_context.callbacks.setUrlListener([this] { callbackArrived(); });
}

void WindowHost::callbackArrived() {
    raise(*m_window);
    if (QWidget* modal = QApplication::activeModalWidget()) {
        raise(*modal);
    }
    for (const GadgetDock* dock : m_window->docks()) {
        if (dock->watch()) {
            dock->watch()->callbackArrived();
        }
    }
}

} // namespace xbr::host
