#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/app/modules/loadedmodule.h"
#include "tests/fixtures/hostcontext.h"
#include "tests/fixtures/testfolder.h"

#include <gmock/gmock.h>

namespace {

std::string events; ///< what happened to the module
std::string kind;   ///< how it is wrong

} // namespace

XBR_API void recordModuleEvent(const char* event);
XBR_API void recordModuleEvent(const char* event) {
    events += std::string(event) + ' ';
}

XBR_API const char* testModuleKind();
XBR_API const char* testModuleKind() {
    return kind.c_str();
}

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct ModuleLoading : testing::Test {
    static std::int32_t countThings() { return XBRGetPlugInManager()->countClasses(toText("Test")); }

    TestFolder folder;
    Ref<TestHostContext> context = make<TestHostContext>();
};

} // namespace

TEST_F(ModuleLoading, everyProblemIsOneClearLine) {
    const std::tuple<std::string, const char*, const char*, const char*> cases[] = {
        {folder.path("none.so"), "is not there", "", ""},
        {folder.path(), "is not there", "", ""},
        {folder.write("text.so", "no library"), "cannot be loaded", "", ""},
        {TEST_LIBRARY, "no module", "", ""},
        {TEST_MODULE, "refuses", "load unload ", "refusing"},
        {TEST_MODULE, "border version 2.0, this host for 1.0", "", "newer"},
        {TEST_MODULE, "no service", "load unload ", "serviceless"},
        {TEST_MODULE, "cannot start its service 'Test'", "load test host released unload ", "failing"},
    };
    for (const auto& [path, problem, expected, isWrong] : cases) {
        events.clear();
        kind = isWrong;
        const auto loaded = LoadedModule::load(path, *context);
        ASSERT_FALSE(loaded) << path;
        EXPECT_EQ(loaded.problem().subject, path);
        EXPECT_THAT(loaded.problem().words, HasSubstr(problem));
        EXPECT_EQ(loaded.problem().words.find('\n'), std::string::npos);
        EXPECT_EQ(events, expected) << path;
        EXPECT_EQ(countThings(), 0);
    }
}

TEST_F(ModuleLoading, unloadingTakesEverythingBackInReverse) {
    kind.clear();
    for (const char* time : {"once", "and again"}) {
        events.clear();
        {
            const auto module = LoadedModule::load(TEST_MODULE, *context);
            ASSERT_TRUE(module) << time;
            EXPECT_EQ((*module)->name() + " " + (*module)->version(), "Test 1.2.3");
            EXPECT_EQ(countThings(), 1);
        }
        EXPECT_EQ(countThings(), 0);
        EXPECT_EQ(events, "load test host terminated released unload ") << time;
    }
}

TEST_F(ModuleLoading, searchPathNamesFilesAndFolders) {
    const std::string two = folder.write("a/two.so", "");
    const std::string one = folder.write("a/one.so", "");
    folder.write("a/readme.txt", "");
    {
        const TestVariable path("XBRHOST_MODULE_PATH", "/none.so::" + folder.path("a"));
        EXPECT_THAT(findModules("/bin"), ElementsAre("/none.so", one, two));
    }
    const std::string installed = folder.write("lib/xbrhost/modules/m.so", "");
    EXPECT_THAT(findModules(folder.path("bin")), ElementsAre(installed));
    const std::string built = folder.write("lib/libbrindlex.so", "");
    EXPECT_THAT(findModules(folder.path("bin")), ElementsAre(built));
}

} // namespace xbr::host
