#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/app/modules/loadedmodule.h"
#include "tests/fixtures/testfolder.h"

#include <gmock/gmock.h>

namespace {

std::vector<std::string>& events() {
    static std::vector<std::string> recorded;
    return recorded;
}

} // namespace

XBR_API void recordModuleEvent(const char* event);
XBR_API void recordModuleEvent(const char* event) {
    events().emplace_back(event);
}

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class FakeContext final : public Object<IHostContext> {
public:
    std::uint32_t borderVersion() const noexcept override { return kBorderVersion; }
    Text hostName() const noexcept override { return toText("test host"); }
    Text hostVersion() const noexcept override { return toText("1"); }
};

class ModuleLoading : public testing::Test {
protected:
    ModuleLoading() { events().clear(); }

    std::string load(const std::string& path) {
        m_module.reset();
        auto loaded = LoadedModule::load(path, *m_context);
        if (!loaded) {
            EXPECT_EQ(loaded.problem().subject, path);
            return loaded.problem().words;
        }
        m_module = std::move(*loaded);
        return {};
    }
    static std::string testModule(const std::string& kind) {
        return std::string(TEST_MODULES) + "/testmodule_" + kind + ".so";
    }
    static std::int32_t countThings() { return XBRGetPlugInManager()->countClasses(toText("Test")); }

    Ref<FakeContext> m_context = make<FakeContext>();
    std::unique_ptr<LoadedModule> m_module;
    TestFolder m_folder;
};

} // namespace

TEST_F(ModuleLoading, everyProblemIsOneClearLine) {
    const struct {
        std::string path;
        const char* problem;
        std::vector<std::string> events;
    } cases[] = {
        {m_folder.path("none.so"), "is not there", {}},
        {m_folder.path(), "is not there", {}},
        {m_folder.write("text.so", "no library"), "cannot be loaded", {}},
        {testModule("empty"), "no module", {}},
        {testModule("refusing"), "refuses", {"load", "unload"}},
        {testModule("newer"), "border version 2.0, this host for 1.0", {}},
        {testModule("serviceless"), "no service", {"load", "unload"}},
        {testModule("failing"),
         "cannot start its service 'Test'",
         {"load", "test host", "released", "unload"}},
    };
    for (const auto& one : cases) {
        events().clear();
        const std::string error = load(one.path);
        EXPECT_EQ(m_module, nullptr);
        EXPECT_THAT(error, HasSubstr(one.problem));
        EXPECT_EQ(error.find('\n'), std::string::npos);
        EXPECT_EQ(events(), one.events) << one.path;
        EXPECT_EQ(countThings(), 0);
    }
}

TEST_F(ModuleLoading, unloadingTakesEverythingBackInReverse) {
    ASSERT_EQ(load(testModule("good")), "");
    EXPECT_EQ(m_module->name() + " " + m_module->version(), "Test 1.2.3");
    EXPECT_EQ(countThings(), 1);
    m_module.reset();
    EXPECT_EQ(countThings(), 0);
    EXPECT_THAT(events(), ElementsAre("load", "test host", "terminated", "released", "unload"));
    ASSERT_EQ(load(testModule("good")), ""); // and again
    EXPECT_EQ(countThings(), 1);
}

TEST_F(ModuleLoading, searchPathNamesFilesAndFolders) {
    m_folder.write("a/two.so", "");
    m_folder.write("a/one.so", "");
    m_folder.write("a/readme.txt", "");
    {
        const TestVariable path("XBRHOST_MODULE_PATH", "/none.so::" + m_folder.path("a"));
        EXPECT_THAT(findModules("/bin"),
                    ElementsAre("/none.so", m_folder.path("a/one.so"), m_folder.path("a/two.so")));
    }
    const std::string installed = m_folder.write("lib/xbrhost/modules/m.so", "");
    EXPECT_THAT(findModules(m_folder.path("bin")), ElementsAre(installed));
    const std::string built = m_folder.write("lib/libbrindlex.so", "");
    EXPECT_THAT(findModules(m_folder.path("bin")), ElementsAre(built));
}

} // namespace xbr::host
