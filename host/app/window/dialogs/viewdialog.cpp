#include "host/app/window/dialogs/viewdialog.h"

#include "host/app/publishing/signin/reachability.h"
#include "host/app/window/dialogs/signinstrip.h"
#include "host/app/window/look/desktop.h"
#include "host/gui/hostwidgets.h"

#include <QLabel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace xbr::host {

namespace {

/// Belongs to the window, which may take it along when it goes.
QPointer<ViewDialogFrame> makeFrame(QWidget* window, std::int32_t styleFlags) {
    return new ViewDialogFrame(window, styleFlags);
}

} // namespace

ViewDialogFrame::ViewDialogFrame(QWidget* parent, std::int32_t styleFlags)
    : QDialog(parent),
      m_isClosable((styleFlags & IDialog::kCloseButton) != 0),
      m_notice(new QLabel(this)) {
    setWindowModality((styleFlags & IDialog::kModal) != 0 ? Qt::ApplicationModal : Qt::NonModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowCloseButtonHint, m_isClosable);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_notice->setObjectName("notice");
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_notice->setWordWrap(true);
    m_notice->hide();
    layout->addWidget(m_notice);
}

bool ViewDialogFrame::showView(IView& view) {
    m_form = createViewWidget(view, this);
    if (!m_form) {
        return false;
    }
    qobject_cast<QVBoxLayout*>(layout())->insertWidget(0, m_form, 1);
    setWindowTitle(m_form->windowTitle());
    m_form->setFocus();
    return true;
}

void ViewDialogFrame::showSignIn(HostSession& session, const QString& address) {
    auto* strip = new SignInStrip(session, address, this);
    connect(strip, &SignInStrip::noticed, this, &ViewDialogFrame::setNotice);
    layout()->addWidget(strip);
}

void ViewDialogFrame::setNotice(const QString& text) {
    m_notice->setText(text);
    m_notice->setAccessibleName(text);
    m_notice->setVisible(!text.isEmpty());
    adjustSize();
}

void ViewDialogFrame::reject() {
    if (m_isClosable) {
        QDialog::reject();
    }
}

Result ViewDialog::setTheme(ITheme* theme) noexcept {
    m_theme = Ref<ITheme>::share(theme);
    return kOk;
}

Result ViewDialog::setTranslationTable(ITranslationTable* table) noexcept {
    m_table = Ref<ITranslationTable>::share(table);
    return kOk;
}

bool ViewDialog::isHopeless() const {
    const ConfigurationReport& report = m_place->session.settings();
    return m_place->session.activity().isEnding() || (report.wasAsked && !report.isComplete());
}

Result ViewDialog::runModal(IView* view, std::int32_t styleFlags) noexcept {
    if (m_loop) {
        return kUnexpected;
    }
    if (!view) {
        return kInvalidArgument;
    }
    if (isHopeless()) {
        return kOk;
    }
    const auto self = Ref<ViewDialog>::share(this); // whoever made it may let go of it meanwhile
    const auto shown = Ref<IView>::share(view);
    const auto frame = makeFrame(m_place->window, styleFlags);
    if (!frame->showView(*view)) {
        delete frame;
        return kInvalidArgument;
    }
    if (m_place->session.isBrowserAwaited()) {
        frame->showSignIn(m_place->session, m_place->address);
    }
    const QScopedValueRollback<QPointer<ViewDialogFrame>> onTop(m_place->dialog, frame);
    QEventLoop loop;
    m_loop = &loop;
    const Activity::Run run(m_place->session.activity(), Activity::Kind::kDialog, [&loop] { loop.quit(); });
    QObject::connect(frame, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(frame, &QObject::destroyed, &loop, &QEventLoop::quit);
    Reachability reachability;
    reachability.check(m_place->session.settings().serverUrl, [&frame](const std::string& problem) {
        if (frame) {
            frame->setNotice(QString::fromStdString(problem));
        }
    });
    frame->show();
    raise(*frame);
    loop.exec();
    m_loop = nullptr;
    delete frame;
    return kOk;
}

Result ViewDialog::close() noexcept {
    if (!m_loop) {
        return kFalse;
    }
    m_loop->quit();
    return kOk;
}

} // namespace xbr::host
