#include "host/app/headless/consoledialog.h"

#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"

namespace xbr::host {

namespace {

/// The state in which a panel's client waits for the browser (its property "clientState").
constexpr std::int64_t kAwaitingCode = 1;

bool isAwaitingCode(IController& controller) {
    const auto client = findObject<IPropertySource>(controller, "Client");
    Value state{};
    return client && client->getProperty(toText("clientState"), &state) == kOk &&
           integerOf(state) == kAwaitingCode;
}

} // namespace

Result ConsoleDialog::setTheme(ITheme*) noexcept {
    return kOk; // nothing is drawn
}

Result ConsoleDialog::setTranslationTable(ITranslationTable*) noexcept {
    return kOk;
}

bool ConsoleDialog::isHopeless() const {
    return m_context->interruption.isInterrupted() ||
           (m_context->configuration->wasAsked && !m_context->configuration->isComplete());
}

void ConsoleDialog::watchCallbacks(IController& controller) {
    m_context->callbacks.setUrlListener([this, &controller] {
        if (isAwaitingCode(controller)) {
            // Who denied by mistake may go back in the browser and allow; and any page can open such a link.
            m_context->output->message(
                "The browser came back without a permission. Still waiting: allow it there, or "
                "end with Ctrl-C.");
        }
    });
}

Result ConsoleDialog::runModal(IView* view, std::int32_t) noexcept {
    if (m_loop || !view || !view->controller()) {
        return kUnexpected;
    }
    if (isHopeless()) {
        return kOk;
    }
    const auto self = Ref<ConsoleDialog>::share(this);
    const auto controller = Ref<IController>::share(view->controller());
    const auto interrupted = m_context->interruption.subscribe([this] { close(); });
    watchCallbacks(*controller);
    QEventLoop loop;
    m_loop = &loop;
    Reachability reachability;
    // The reason is told at the end, by who asked for the sign-in.
    reachability.check(m_context->configuration->serverUrl, [this](const std::string& problem) {
        if (!problem.empty()) {
            close();
        }
    });
    loop.exec();
    m_loop = nullptr;
    m_context->callbacks.setUrlListener({});
    return kOk;
}

Result ConsoleDialog::close() noexcept {
    if (!m_loop) {
        return kFalse;
    }
    m_loop->quit();
    return kOk;
}

} // namespace xbr::host
