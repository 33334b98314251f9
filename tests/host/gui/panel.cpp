#include "tests/host/gui/panel.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/gui/hostgui.h"
#include "host/gui/hostwidgets.h"
#include "release/genrecatalogue.h"
#include "tests/fixtures/testfolder.h"
#include "ui/news/feedelement.h"

#include <QApplication>

namespace xbr::host::tests {

Panel::Panel() : TestController("Panel") {
    brindlex::loadGenres();
    for (const char* name :
         {"getAuthorizationCode", "resetAuthorization", "retryAuthorization", "isAuthorized"}) {
        client->addParameter(ParameterKind::kPlain, 100 + client->countParameters(), name);
    }
    addChild(client);
    addChild(tracks);
    addParameter(ParameterKind::kCommand, 101, "upload").setEnabled(false);
    addParameter(ParameterKind::kCommand, 102, "connect");
    addParameter(ParameterKind::kText, 103, "userName").set(textValue("Ana"));
    addParameter(ParameterKind::kText, 104, "userURL").set(textValue("https://example.org/me"));
    setState(0);
}

void Panel::setState(int state) {
    client->named("isAuthorized").set(boolValue(state == kSignedIn), Notify::kNobody);
    client->change("clientState", state);
}

void Panel::addTracks(int count) {
    const auto objects = make<ObjectList>();
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        const auto record = make<brindlex::TrackMetadata>();
        record->songTitle = "Track " + number;
        const auto item = make<brindlex::TrackItem>(record->songTitle,
                                                    Url("file:///music/mixdown/" + number + ".wav"), record);
        objects->add(query<IObject>(item.get()));
    }
    tracks->add(*objects);
}

PanelForms::PanelForms(const std::string& language) : m_resources(readFile(PANEL_ARCHIVE)) {
    // English has no translations: a language that nobody carries stands for it.
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("LANGUAGE", QByteArray::fromStdString(language));
    registerGuiClasses();
    static const ClassDescription kFeed{
        0, uid("02eb5f3d-b585-4e16-be6d-1c7e3f2c7fec"), toText("Component"), toText("FeedElement"), {}, {}};
    m_classes->add(kFeed, creatorOf<brindlex::FeedElement>());
    XBRGetPlugInManager()->addFactory(m_classes.get());
    XBRGetFileSystem()->registerResources(toText("brindlex"), m_resources.data(), m_resources.size());
    m_module.loadTheme("resource://brindlex/skin");
}

PanelForms::~PanelForms() {
    form.reset();
    panel.reset();
    XBRGetFileSystem()->unregisterResources(toText("brindlex"));
    XBRGetPlugInManager()->removeFactory(m_classes.get());
    setComponentSettings({});
    unregisterGuiClasses();
}

QWidget& PanelForms::open(const char* name, const std::string& news) {
    setComponentSettings([news](std::string_view, std::string_view) {
        return std::vector<ComponentProperty>{{"url", news}};
    });
    panel = make<Panel>();
    Ref<IView> view;
    m_module.theme()->createView(toText(name), panel.get(), view.out());
    form.reset(createViewWidget(*view, nullptr));
    form->show();
    QApplication::setActiveWindow(form.get()); // a window system would do that
    QCoreApplication::processEvents();
    return *form;
}

} // namespace xbr::host::tests
