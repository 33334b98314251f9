// What happens while the built extension's connect dialog turns the real host's event loop.

#include "framework/abi/filetype.h"
#include "framework/abi/hostclasses.h"
#include "framework/abi/pluginmanager.h"
#include "framework/abi/view.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/path.h"
#include "host/gui/hostgui.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"
#include "tests/e2e/builtmodule.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <deque>
#include <functional>

namespace {

using e2e::Context;
using e2e::create;
using e2e::Library;

/// What happens in the dialogs, in the order in which they are opened, and what became of them.
struct Script {
    std::deque<std::function<void()>> inside;
    int runs = 0;
    int closed = 0;                 ///< by the module
    std::vector<QEventLoop*> loops; ///< of the dialogs that run
};

Script* g_script = nullptr;

class ScriptedDialog final : public xbr::Object<xbr::IDialog> {
public:
    xbr::Result setTheme(xbr::ITheme*) noexcept override { return xbr::kOk; }
    xbr::Result setTranslationTable(xbr::ITranslationTable*) noexcept override { return xbr::kOk; }
    xbr::Result runModal(xbr::IView*, std::int32_t) noexcept override {
        ++g_script->runs;
        const auto inside = g_script->inside.front();
        g_script->inside.pop_front();
        QEventLoop loop;
        m_loop = &loop;
        g_script->loops.push_back(&loop);
        QTimer::singleShot(0, &loop, inside);
        QTimer::singleShot(10'000, &loop, [&] {
            ADD_FAILURE() << "the dialog stays for ever";
            loop.quit();
        });
        loop.exec();
        g_script->loops.pop_back();
        m_loop = nullptr;
        return xbr::kOk;
    }
    xbr::Result close() noexcept override {
        ++g_script->closed;
        if (m_loop) {
            m_loop->quit();
        }
        return xbr::kOk;
    }

private:
    QEventLoop* m_loop = nullptr;
};

/// A service at which nobody listens.
class Configuration final : public xbr::Object<xbr::IConfigurationStore> {
public:
    xbr::Result load(xbr::IAttributes* out, xbr::Text, xbr::Text, std::int32_t,
                     std::int32_t) noexcept override {
        for (const auto& [key, value] : {std::pair{"ServerURL", "http://127.0.0.1:9"},
                                         {"ConsumerKey", "k"},
                                         {"ConsumerSecret", "s"},
                                         {"CallbackURL", "brindlex://authorize"}}) {
            out->set(xbr::toText(key), xbr::textValue(value));
        }
        return xbr::kOk;
    }
};

const xbr::ClassDescription kDialog{0, xbr::IDialog::kClassUid, {}, {}, {}, {}};
const xbr::ClassDescription kStore{0, xbr::IConfigurationStore::kClassUid, {}, {}, {}, {}};

class Modal : public testing::Test {
protected:
    Modal() {
        qputenv("BROWSER", "/bin/true");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        qunsetenv("DISPLAY");
        g_script = &script;
        xbr::host::registerGuiClasses();
        classes->add(kDialog, xbr::creatorOf<ScriptedDialog>());
        classes->add(kStore, xbr::creatorOf<Configuration>());
        XBRGetPlugInManager()->addFactory(classes.get());
        EXPECT_EQ(library.load(), 1);
        service = create<xbr::IProgramService>(*library.getFactory(), 0);
        service->initialise(context.get());
        xbr::Ref<xbr::IClassFactory> offered;
        service->getClasses(offered.out());
        panel = create<xbr::IController>(*offered, 1);
    }
    ~Modal() override {
        panel.reset();
        unload();
        XBRGetPlugInManager()->removeFactory(classes.get());
        xbr::host::unregisterGuiClasses();
        xbr::host::dropPostedMessages();
    }

    void unload() {
        if (service) {
            xbr::host::abortAllRequests();
            service->terminate();
            service.reset();
            library.unload();
        }
    }

    void perform(const char* path) {
        const auto parameter = xbr::Ref<xbr::IParameter>::share(xbr::findParameter(*panel, path));
        parameter->setValue(xbr::integerValue(1));
    }
    static void callback(const char* query) {
        const std::string url = std::string("brindlex://authorize?") + query;
        EXPECT_TRUE(XBRGetFileTypeRegistry()->openUrl(xbr::toText(url)));
    }
    void closeFromFrame() const { script.loops.back()->quit(); }
    std::int64_t clientState() {
        const auto client = xbr::findObject<xbr::IPropertySource>(*panel, "Client");
        xbr::Value state{};
        client->getProperty(xbr::toText("clientState"), &state);
        return xbr::integerOf(state);
    }

    Script script;
    xbr::Ref<xbr::ClassFactory> classes = xbr::make<xbr::ClassFactory>();
    Library library;
    xbr::Ref<Context> context = xbr::make<Context>();
    xbr::Ref<xbr::IProgramService> service;
    xbr::Ref<xbr::IController> panel;
};

TEST_F(Modal, CallbacksAndButtonsEndTheDialogOrLeaveIt) {
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"a code that nobody exchanges", [&] { callback("code=c"); }},
        {"a refusal, then cancel",
         [&] {
             callback("error=access_denied");
             EXPECT_EQ(clientState(), 1);
             perform("Client/resetAuthorization");
         }},
        {"retry in the exchange, then cancel",
         [&] {
             callback("code=c");
             perform("Client/retryAuthorization");
             EXPECT_EQ(clientState(), 1);
             QTimer::singleShot(50, &*script.loops.back(), [&] { perform("Client/resetAuthorization"); });
         }},
    };
    for (const auto& [what, inside] : cases) {
        script.inside = {inside};
        script.closed = 0;
        perform("connect");
        EXPECT_EQ(script.closed, 1) << what;
        EXPECT_EQ(clientState(), 0) << what;
    }
}

TEST_F(Modal, SecondConnectLeavesNoDialogBehind) {
    script.inside = {[&] { perform("connect"); }, [&] { callback("code=c"); }};
    perform("connect");
    EXPECT_EQ(script.runs, 2);
    EXPECT_EQ(script.closed, 2);
}

TEST_F(Modal, ThePanelMayBeClosed) {
    script.inside = {[&] {
        callback("code=c");
        panel.reset();
        closeFromFrame();
    }};
    perform("connect");
    QCoreApplication::processEvents();
    EXPECT_FALSE(panel);
}

TEST_F(Modal, TheModuleMayBeUnloaded) {
    script.inside = {[&] {
        callback("code=c");
        panel.reset();
        unload();
        closeFromFrame();
    }};
    perform("connect");
    QCoreApplication::processEvents();
    EXPECT_EQ(library.load(), 1) << "and loaded again";
    EXPECT_EQ(library.unload(), 1);
}

} // namespace
