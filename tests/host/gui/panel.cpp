#include "tests/host/gui/panel.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "host/gui/hostgui.h"
#include "host/gui/hostwidgets.h"
#include "release/genrecatalogue.h"
#include "ui/news/feedelement.h"

#include <QFile>
#include <QWidget>

namespace xbr::host::tests {

namespace {

enum ClientTag : std::int32_t { kGetCode = 100, kReset = 101, kRetry = 102, kIsAuthorized = 103 };
enum PanelTag : std::int32_t { kUpload = 101, kConnect = 102, kUserName = 103, kUserUrl = 104 };

constexpr int kAuthorized = 3;

std::string readFile(const std::string& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

} // namespace

PanelClient::PanelClient() : Component("Client") {
    addParameter(ParameterKind::kPlain, kGetCode, "getAuthorizationCode");
    addParameter(ParameterKind::kPlain, kReset, "resetAuthorization");
    addParameter(ParameterKind::kPlain, kRetry, "retryAuthorization");
    addParameter(ParameterKind::kPlain, kIsAuthorized, "isAuthorized").set(boolValue(false));
}

void PanelClient::setState(int state) {
    m_state = state;
    parameter(kIsAuthorized)->set(boolValue(state == kAuthorized), Notify::kNobody);
    signal(*this, "propertyChanged");
}

Result PanelClient::getProperty(Text name, Value* out) noexcept {
    if (xbr::view(name) == "clientState") {
        *out = integerValue(m_state);
        return kOk;
    }
    return Component::getProperty(name, out);
}

void PanelClient::parameterChanged(Parameter& parameter) {
    resets += parameter.tag() == kReset ? 1 : 0;
    retries += parameter.tag() == kRetry ? 1 : 0;
    setState(parameter.tag() == kReset ? 0 : m_state);
}

Panel::Panel() : Component("Panel") {
    brindlex::loadGenres();
    m_client = make<PanelClient>();
    m_tracks = make<brindlex::TrackListComponent>();
    addChild(m_client);
    addChild(m_tracks);
    addParameter(ParameterKind::kCommand, kUpload, "upload").setEnabled(false);
    addParameter(ParameterKind::kCommand, kConnect, "connect");
    addParameter(ParameterKind::kText, kUserName, "userName");
    addParameter(ParameterKind::kText, kUserUrl, "userURL");
}

Panel::~Panel() = default;

Parameter& Panel::named(std::string_view name) {
    return static_cast<Parameter&>(*findParameter(toText(name)));
}

void Panel::signIn(std::string_view user, std::string_view url) {
    named("userName").set(textValue(user));
    named("userURL").set(textValue(url));
    m_client->setState(kAuthorized);
}

void Panel::addTracks(int count) {
    const auto objects = make<ObjectList>();
    for (int i = 0; i < count; ++i) {
        const std::string title = "Track " + std::to_string(i + 1);
        const auto record = make<brindlex::TrackMetadata>();
        record->songTitle = title;
        const auto item = make<brindlex::TrackItem>(
            title, Url("file:///music/mixdown/" + std::to_string(i + 1) + ".wav"), record);
        objects->add(query<IObject>(item.get()));
    }
    m_tracks->add(*objects);
}

void Panel::parameterChanged(Parameter& parameter) {
    uploads += parameter.tag() == kUpload ? 1 : 0;
}

PanelSkin::PanelSkin(const std::string& archive, const std::string& language)
    : m_bytes(readFile(archive)),
      m_locale(qgetenv("LC_ALL")) {
    // English has no translations: a language that nobody carries stands for it.
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("LANGUAGE", QByteArray::fromStdString(language));
    registerGuiClasses();
    static const ClassDescription kFeed{
        0, uid("02eb5f3d-b585-4e16-be6d-1c7e3f2c7fec"), toText("Component"), toText("FeedElement"), {}, {}};
    m_classes = make<ClassFactory>();
    m_classes->add(kFeed, creatorOf<brindlex::FeedElement>());
    XBRGetPlugInManager()->addFactory(m_classes.get());
    XBRGetFileSystem()->registerResources(toText("brindlex"), m_bytes.data(), m_bytes.size());
    m_theme = createHostObject<ITheme>();
    m_theme->load(toText("resource://brindlex/skin"));
}

PanelSkin::~PanelSkin() {
    m_theme.reset();
    XBRGetFileSystem()->unregisterResources(toText("brindlex"));
    XBRGetPlugInManager()->removeFactory(m_classes.get());
    setComponentSettings({});
    unregisterGuiClasses();
    qputenv("LC_ALL", m_locale);
    qunsetenv("LANGUAGE");
}

void PanelSkin::setNews(const std::string& url) {
    setComponentSettings([url](std::string_view, std::string_view) {
        return std::vector<ComponentProperty>{{"url", url}};
    });
}

Ref<IView> PanelSkin::view(std::string_view form, IController& controller) const {
    Ref<IView> view;
    m_theme->createView(toText(form), &controller, view.out());
    return view;
}

std::unique_ptr<QWidget> PanelSkin::widget(std::string_view form, IController& controller) const {
    const auto made = view(form, controller);
    return std::unique_ptr<QWidget>(made ? createViewWidget(*made, nullptr) : nullptr);
}

} // namespace xbr::host::tests
