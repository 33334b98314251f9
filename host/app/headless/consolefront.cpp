#include "host/app/headless/consolefront.h"

#include "framework/abi/progress.h"
#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/headless/pastedlink.h"
#include "host/app/publishing/signin/reachability.h"
#include "host/app/publishing/verdict/words.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <optional>

namespace xbr::host {

/// Stands for a dialog where there is no window: waits until the module closes it.
///
/// It closes by itself where a person in front of a window would press "Cancel": on Ctrl-C, and when the
/// service does not answer or its settings are missing.
class ConsoleDialog final : public Object<IDialog> {
public:
    ConsoleDialog(ConsoleFront& front, HostSession& session) : m_front(&front), m_session(&session) {}

    Result setTheme(ITheme*) noexcept override { return kOk; } // nothing is drawn
    Result setTranslationTable(ITranslationTable*) noexcept override { return kOk; }
    Result runModal(IView* view, std::int32_t styleFlags) noexcept override;
    Result close() noexcept override;

    void callbackCame();

private:
    bool isHopeless() const;

    ConsoleFront* m_front;
    HostSession* m_session;
    Ref<IController> m_controller; ///< while the dialog runs
    QEventLoop* m_loop = nullptr;  ///< while the dialog runs
};

namespace {

/// The state in which a panel's client waits for the browser (its property "clientState").
constexpr std::int64_t kAwaitingCode = 1;

bool isAwaitingCode(IController& controller) {
    const auto client = findObject<IPropertySource>(controller, "Client");
    Value state{};
    return client && client->getProperty(toText("clientState"), &state) == kOk &&
           integerOf(state) == kAwaitingCode;
}

/// Tells the progress of work on the output; Ctrl-C cancels it.
class ConsoleProgress final : public Object<IProgressIndicator, IProgress> {
public:
    ConsoleProgress(Output& output, Activity& activity) : m_output(&output), m_activity(&activity) {}

    void setTitle(Text title) noexcept override { m_title = toString(title); }
    void setOption(std::int32_t option) noexcept override { m_isCancellable = option == 1; }
    void begin() noexcept override;
    void end() noexcept override;

    void update(double fraction, Text what) noexcept override;
    bool isCancelled() noexcept override {
        return m_isCancellable && (m_isEnded || Interruption::isInterrupted());
    }

private:
    Output* m_output;
    Activity* m_activity;
    std::string m_title;
    bool m_isCancellable = false;
    bool m_isEnded = false;             ///< by the host
    std::optional<Activity::Run> m_run; ///< between begin and end
    QElapsedTimer m_told;
};

void ConsoleProgress::begin() noexcept {
    if (!m_run) {
        m_isEnded = false;
        m_run.emplace(
            *m_activity, Activity::Kind::kPreparing, [this] { m_isEnded = true; }, this);
    }
    m_told.invalidate();
}

void ConsoleProgress::end() noexcept {
    if (m_run && isCancelled()) {
        m_run->cancelled();
    }
    m_run.reset();
}

void ConsoleProgress::update(double fraction, Text what) noexcept {
    static constexpr qint64 kTellEvery = 50; // milliseconds
    if (!m_run) {
        return;
    }
    if (!m_told.isValid() || m_told.elapsed() >= kTellEvery) {
        m_told.start();
        m_run->progressed(fraction, toString(what)); // what it means in bytes is known before it is told
        m_output->preparation(m_title, fraction, view(what));
    }
    const auto self = Ref<ConsoleProgress>::share(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

bool ConsoleDialog::isHopeless() const {
    const ConfigurationReport& settings = m_session->settings();
    const StoreResult found = m_session->activity().lastFound();
    const bool isKept = m_front->dialogs() == Dialogs::kUnlessStored &&
                        (found == StoreResult::kLocked || found == StoreResult::kSilent);
    return isKept || Interruption::isInterrupted() || (settings.wasAsked && !settings.isComplete());
}

void ConsoleDialog::callbackCame() {
    if (isAwaitingCode(*m_controller)) {
        // Who denied by mistake may go back in the browser and allow; and any page can open such a link.
        m_front->output().message(
            say(Output::tr("The browser came back without a permission. Allow the access "
                           "there, or end with Ctrl-C.")));
    }
}

Result ConsoleDialog::runModal(IView* view, std::int32_t) noexcept {
    if (m_loop || !view || !view->controller()) {
        return kUnexpected;
    }
    if (isHopeless()) {
        return kOk;
    }
    const auto self = Ref<ConsoleDialog>::share(this);
    const Activity::Run run(m_session->activity(), Activity::Kind::kDialog, [this] { close(); });
    m_controller = Ref<IController>::share(view->controller());
    m_front->setDialog(this);
    QEventLoop loop;
    m_loop = &loop;
    Reachability reachability;
    // The reason is told at the end, by who asked for the sign-in.
    reachability.check(m_session->settings().serverUrl, [this](const std::string& problem) {
        if (!problem.empty()) {
            close();
        }
    });
    std::optional<PastedLink> pasted;
    if (m_front->isAnswered()) {
        pasted.emplace(*m_session, m_front->output());
    }
    loop.exec();
    m_loop = nullptr;
    m_front->setDialog(nullptr);
    m_controller.reset();
    return kOk;
}

Result ConsoleDialog::close() noexcept {
    if (!m_loop) {
        return kFalse;
    }
    m_loop->quit();
    return kOk;
}

ConsoleFront::ConsoleFront(std::unique_ptr<Output> output, Dialogs dialogs, bool isAnswered)
    : m_output(std::move(output)),
      m_dialogs(dialogs),
      m_isAnswered(isAnswered) {}

Ref<IObject> ConsoleFront::makeDialog(HostSession& session) {
    if (m_dialogs == Dialogs::kNone) {
        return {};
    }
    const auto dialog = make<ConsoleDialog>(*this, session);
    return query<IObject>(dialog.get());
}

Ref<IObject> ConsoleFront::makeProgress(HostSession& session) {
    const auto progress = make<ConsoleProgress>(*m_output, session.activity());
    return query<IObject>(progress.get());
}

bool ConsoleFront::announceBrowser(std::string_view url) {
    m_output->signInAddress(url);
    return true;
}

bool ConsoleFront::keyringWaits(bool isForUser) {
    if (isForUser && !std::exchange(m_isKeyringTold, true)) {
        m_output->message(say(Words::tr("Waiting for the keyring to be unlocked.")));
    }
    QCoreApplication::processEvents(); // signals
    return true;
}

void ConsoleFront::browserFailed(const std::string&, const std::string& reason) {
    m_output->message(say(Words::tr("The web browser could not be started: %1."), reason));
}

void ConsoleFront::callbackCame() {
    if (m_dialog) {
        m_dialog->callbackCame();
    }
}

ConsoleSession::ConsoleSession(const CommandLine& commandLine, Dialogs dialogs)
    : m_front(makeOutput(commandLine), dialogs, isAnswered(commandLine)),
      m_session(m_front, {commandLine.module, false, dialogs != Dialogs::kNone}) {}

/// The first panel that the module offers.
Outcome<GadgetPanel*> ConsoleSession::openPanel(const std::vector<Problem>& problems) {
    const auto gadgets = findGadgets();
    if (m_session.modules().empty()) {
        return problems.empty() ? Problem{Fault::kModule, {}, 0, {}, {}, {}} : problems.front();
    }
    if (gadgets.empty()) {
        return Problem{Fault::kModule,
                       m_session.modules().front()->path(),
                       0,
                       say(CommandLine::tr("has no panel")),
                       {},
                       {}};
    }
    return m_session.openPanel(gadgets.front(), {});
}

ExitCode ConsoleSession::start() {
    const auto problems = m_session.start();
    const auto panel = openPanel(problems);
    if (!panel) {
        const Verdict verdict = judgeModule(panel.problem());
        output().finished({verdict, {}, {}, 0, 0});
        return verdict.code;
    }
    for (const Problem& problem : problems) { // the module is loaded: it is the browser that nobody hears
        printError(
            say(CommandLine::tr("The browser's answer to a sign-in cannot be received: %1."), problem.words));
    }
    m_panel = *panel;
    return ExitCode::kDone;
}

} // namespace xbr::host
