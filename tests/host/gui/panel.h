#pragma once

#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/modulecomponent.h"
#include "tests/host/gui/testcontroller.h"
#include "ui/tracks/tracklistcomponent.h"

#include <QWidget>

namespace xbr::host::tests {

/// The panel's controller as its forms see it: the extension's own track list and editor beside a client
/// without a network, whose state tests choose.
class Panel final : public TestController {
public:
    static constexpr int kSignedIn = 3;

    Panel();

    void setState(int state);
    void addTracks(int count);

    const Ref<TestController> client = make<TestController>("Client");
    const Ref<brindlex::TrackListComponent> tracks = make<brindlex::TrackListComponent>();
};

/// The forms of the extension's resources in a language, with the component of its news, as the module and
/// the host bring them to the screen.
class PanelForms {
public:
    explicit PanelForms(const std::string& language = "en");
    ~PanelForms();

    /// Shows a form of a new panel, with the news of an address.
    QWidget& open(const char* form, const std::string& news = {});

    template <class Widget = QWidget>
    Widget& at(const char* name) const {
        auto* found = form->findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(found);
        return *found;
    }

    Ref<Panel> panel;
    std::unique_ptr<QWidget> form;

private:
    ModuleComponent m_module{"brindlex", "Kestrova", "Brindlex Support", "1"};
    std::string m_resources;
    Ref<ClassFactory> m_classes = make<ClassFactory>();
};

} // namespace xbr::host::tests
