#include "host/app/window/panels/gadgetdock.h"

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "framework/support/parts/path.h"
#include "host/app/window/look/desktop.h"
#include "host/app/window/panels/docktitle.h"
#include "host/gui/hostwidgets.h"

#include <QEvent>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr int kMargin = 24;

/// Scrolls the form down, and across only where it would take more than half of the screen.
class PanelArea final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

    QSize minimumSizeHint() const override {
        const int across = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
        return {std::min(across, screen()->availableSize().width() / 2),
                QScrollArea::minimumSizeHint().height()};
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }
};

/// A theme of the window's own, with the skin that the gadget's description names.
Ref<IView> makeView(const GadgetClass& gadget, IController& controller) {
    const auto theme = createHostObject<ITheme>();
    Ref<IView> view;
    const std::string folder = "resource://" + gadget.themeName + "/skin";
    if (theme && theme->load(toText(folder)) == kOk) {
        theme->createView(toText(gadget.formName), &controller, view.out());
    }
    return view;
}

} // namespace

GadgetDock::GadgetDock(const GadgetClass& gadget, DialogPlace& place,
                       std::function<void(const QString&)> tellInDialog, QWidget* parent)
    : QDockWidget(QString::fromStdString(gadget.name), parent) {
    setObjectName("gadget-" + QString::fromStdString(toString(gadget.uid)));
    setAccessibleName(windowTitle());
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    setTitleBarWidget(new DockTitle(*this));
    const auto panel = place.session.openPanel(gadget, [this] { bringToFront(); });
    if (!panel) {
        showProblem(QString::fromStdString(judgeModule(panel.problem()).sentence));
        return;
    }
    m_panel = *panel;
    m_notices = new PanelNotices(*m_panel, place, std::move(tellInDialog), this);
    showForm(gadget);
    connect(m_notices, &PanelNotices::showAsked, this, &GadgetDock::showTrack);
    connect(m_notices, &PanelNotices::touched, this, &GadgetDock::showReason);
    showReason();
}

GadgetDock::~GadgetDock() {
    // The form first: it is bound to what the panel holds. The notices listen to it, too.
    delete m_form;
    delete m_notices;
}

void GadgetDock::showForm(const GadgetClass& gadget) {
    const auto view = makeView(gadget, m_panel->controller());
    m_form = view ? createViewWidget(*view, nullptr) : nullptr;
    if (!m_form) {
        showProblem(tr("The form of this panel cannot be shown."));
        return;
    }
    setShowAction(*m_form, [this] { bringToFront(); });
    auto* area = new PanelArea(this);
    area->setObjectName("panelArea");
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(m_form);
    setWidget(area);
}

/// Why "upload" can do nothing, beside its button.
void GadgetDock::showReason() {
    if (!m_form) {
        return;
    }
    const Hindrance hindrance = m_notices->publishing().hindrance();
    const QString parameter = hindrance.missing.empty() ? "" : parameterOf(hindrance.missing.front());
    setReason(*m_form, "upload", QString::fromStdString(hindrance.sentence),
              [this, row = hindrance.index, parameter] { showTrack(row, parameter); });
}

void GadgetDock::showTrack(int row, const QString& parameter) {
    const auto tracks = m_panel->tracks();
    bringToFront();
    if (row < 0 || !tracks || row >= tracks->countRows()) {
        return;
    }
    tracks->setSelection(&row, 1);
    tracks->setFocus(row);
    if (QWidget* field = parameter.isEmpty() ? nullptr : controlOf(*m_form, parameter)) {
        field->setFocus(Qt::OtherFocusReason);
    }
}

void GadgetDock::showProblem(const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName("panelProblem");
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(kMargin);
    setWidget(label);
}

void GadgetDock::bringToFront() {
    if (!window()->isVisible()) {
        return;
    }
    show();
    raise();
    xbr::host::raise(*window());
    if (m_form) {
        m_form->setFocus();
    }
}

QStringList GadgetDock::genres() const {
    QStringList names;
    const IParameter* genre =
        m_panel ? findParameter(m_panel->controller(), "TrackList/TrackProperties/primaryGenre") : nullptr;
    for (std::int32_t i = 1; genre && i < genre->countChoices(); ++i) { // the first is "not set"
        names.append(QString::fromStdString(toString(genre->choiceAt(i))));
    }
    return names;
}

} // namespace xbr::host
