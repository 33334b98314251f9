#include "host/app/window/start/windowfront.h"

#include "framework/abi/border.h"
#include "host/app/publishing/verdict/words.h"
#include "host/app/window/dialogs/fileselector.h"
#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/dialogs/viewdialog.h"
#include "host/app/window/look/desktop.h"
#include "host/base/qttext.h"

#include <QApplication>

// The resources are in a static library: without this the linker would leave them out.
static void initialiseResources() {
    Q_INIT_RESOURCE(window);
}

namespace xbr::host {

namespace {

VersionLine lineOf(const LoadedModule& module) {
    const std::uint32_t version = module.borderVersion();
    const QString name = QString::fromStdString(module.path().substr(module.path().rfind('/') + 1));
    return {QString::fromStdString(module.name() + " " + module.version()).trimmed(),
            QCoreApplication::translate("xbr::host::WindowFront", "%1, border %2.%3")
                .arg(name)
                .arg(borderMajor(version))
                .arg(version & 0xFFFFU)};
}

Notice noticeOf(const Problem& problem) {
    if (problem.fault == Fault::kModule) {
        return {NoticeKind::kError, QString::fromStdString(judgeModule(problem).sentence), {}, {}};
    }
    return {NoticeKind::kWarning,
            QCoreApplication::translate("xbr::host::WindowFront",
                                        "The browser's answer to a sign-in cannot be received: %1.")
                .arg(QString::fromStdString(problem.words)),
            {},
            {}};
}

template <class T>
Ref<IObject> makeFor(DialogPlace& place) {
    const auto instance = make<T>(place);
    return query<IObject>(instance.get());
}

} // namespace

WindowFront::WindowFront(WindowOptions options)
    : m_options(std::move(options)),
      m_session(*this, {m_options.module, true, true}),
      m_place{m_session} {
    initialiseResources();
    m_window = std::make_unique<MainWindow>(m_place);
    m_opening = make<OpenHandler>([this](const std::string& path) { m_window->addSongs({path}); });
    m_interrupted = m_session.interruption().subscribe([this] { m_window->end(); });
}

WindowFront::~WindowFront() {
    m_interrupted.reset();
    m_opening->close();
    m_window.reset();
}

Ref<IObject> WindowFront::makeDialog(HostSession&) {
    return makeFor<ViewDialog>(m_place);
}

Ref<IObject> WindowFront::makeProgress(HostSession&) {
    return makeFor<ProgressIndicator>(m_place);
}

Ref<IObject> WindowFront::makeFileSelector(HostSession&) {
    return makeFor<FileSelector>(m_place);
}

bool WindowFront::keyringWaits(bool isForUser) {
    if (!m_keyring) {
        m_keyring = std::make_unique<KeyringSheet>(m_place.window);
    }
    return m_keyring->wait(isForUser);
}

void WindowFront::start() {
    const auto problems = m_session.start();
    std::vector<VersionLine> versions;
    for (const auto& module : m_session.modules()) {
        versions.push_back(lineOf(*module));
    }
    m_window->showModules(std::move(versions));
    m_window->restoreSongs();
    m_window->addSongs(m_options.files);
    tell(problems);
    m_window->show();
    // Once the window is there: the keyring may ask for its password.
    QMetaObject::invokeMethod(
        m_window.get(),
        [this] {
            for (const GadgetDock* dock : m_window->docks()) {
                if (dock->notices()) {
                    dock->notices()->restoreSignIn();
                }
            }
        },
        Qt::QueuedConnection);
}

void WindowFront::tell(const std::vector<Problem>& problems) {
    bool isAboutModules = false;
    for (const Problem& problem : problems) {
        const bool isModule = problem.fault == Fault::kModule;
        if (!isModule || !std::exchange(isAboutModules, true)) { // the first of the modules' stands for all
            m_window->showNotice(noticeOf(problem));
        }
    }
    if (m_session.modules().empty() && !isAboutModules) {
        m_window->showNotice(
            {NoticeKind::kWarning, QString::fromStdString(judgeModule({}).sentence), {}, {}});
    }
}

bool WindowFront::announceBrowser(std::string_view url) {
    const bool isForSignIn = m_session.isBrowserAwaited();
    if (isForSignIn) {
        m_place.address = toQString(url); // can be copied
    }
    return isForSignIn;
}

void WindowFront::browserFailed(const std::string& url, const std::string& reason) {
    const QString words = QString::fromStdString(reason);
    if (m_place.dialog) {
        m_place.dialog->setNotice(
            Words::tr("The web browser could not be started: %1. Copy the address and open it "
                      "in a browser.")
                .arg(words));
    } else if (m_place.address != toQString(url)) { // who has closed the dialog needs its page no more
        m_window->showNotice(
            {NoticeKind::kError, Words::tr("The web browser could not be started: %1.").arg(words)});
    }
}

void WindowFront::callbackCame() {
    raise(*m_window);
    for (const GadgetDock* dock : m_window->docks()) {
        if (dock->notices()) {
            dock->notices()->callbackArrived();
        }
    }
}

} // namespace xbr::host
