#include "framework/abi/module.h"
#include "framework/support/objects/message.h"
#include "module/classtable.h"
#include "module/modulekernel.h"
#include "tests/fakehost/fakehost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using brindlex::ModuleKernel;
using fakehost::host;
using testing::ElementsAre;

std::vector<std::string> g_calls;
bool g_secondFails = false;

bool initialise(void* first, void* second) {
    const std::string name = static_cast<const char*>(first);
    g_calls.push_back(name + (second ? "+" : ""));
    return !(g_secondFails && name == "second");
}
void terminate(void* word) {
    g_calls.push_back(std::string("end ") + static_cast<const char*>(word));
}
bool startWell(std::int32_t argument) {
    g_calls.push_back("start " + std::to_string(argument));
    return true;
}
bool startBadly(std::int32_t argument) {
    g_calls.push_back("start " + std::to_string(argument));
    return false;
}

void* word(const char* text) {
    return const_cast<char*>(text);
}

class KernelTest : public testing::Test {
protected:
    KernelTest() {
        fakehost::resetHost();
        g_calls.clear();
        g_secondFails = false;
        kernel->addInitialise(&initialise, word("first"), word("x"));
        kernel->addInitialise(&initialise, word("second"));
        kernel->addTerminate(&terminate, word("first"));
        kernel->addTerminate(&terminate, word("second"));
    }

    int handle = 0;
    xbr::Ref<ModuleKernel> kernel = xbr::make<ModuleKernel>();
};

TEST_F(KernelTest, LoadsInOrderAndUnloadsInReverseEachTime) {
    for (int i = 0; i < 3; ++i) {
        g_calls.clear();
        EXPECT_TRUE(kernel->load(&handle, &startWell));
        EXPECT_EQ(kernel->moduleHandle(), &handle);
        EXPECT_TRUE(kernel->load(&handle, &startWell)) << "a second load runs nothing again";
        kernel->unload(&startWell);
        EXPECT_EQ(kernel->moduleHandle(), nullptr);
        EXPECT_THAT(g_calls, ElementsAre("first+", "second", "start 1", "start 2", "end second", "end first"))
            << i;
    }
}

TEST_F(KernelTest, FailedStartIsTornDownAndCanBeTriedAgain) {
    EXPECT_FALSE(kernel->load(&handle, &startBadly));
    EXPECT_THAT(g_calls, ElementsAre("first+", "second", "start 1", "end second", "end first"));
    EXPECT_EQ(kernel->moduleHandle(), nullptr);
    g_calls.clear();
    kernel->unload(&startWell);
    EXPECT_TRUE(g_calls.empty()) << "there is nothing to unload";
    EXPECT_TRUE(kernel->load(&handle, &startWell));
}

TEST_F(KernelTest, FailedInitialiseFunctionStopsAtOnceAndUndoesNothing) {
    g_secondFails = true;
    EXPECT_FALSE(kernel->load(&handle, &startWell));
    EXPECT_THAT(g_calls, ElementsAre("first+", "second"));
    g_calls.clear();
    kernel->unload(&startWell);
    EXPECT_THAT(g_calls, ElementsAre("start 2", "end second", "end first"));
    g_secondFails = false;
    g_calls.clear();
    EXPECT_TRUE(kernel->load(&handle, &startWell));
    EXPECT_THAT(g_calls, ElementsAre("first+", "second", "start 1")) << "all functions run in a later load";
}

TEST_F(KernelTest, TeardownReleasesObjectsAndForgetsMessages) {
    const auto message = xbr::make<xbr::Message>("late");
    kernel->load(&handle, &startWell);
    const auto object = xbr::make<xbr::Message>("kept");
    kernel->addObject(xbr::query<xbr::IObject>(object.get()));
    host().signals.post(kernel.get(), message.get(), 0);
    kernel->unload(&startWell);
    EXPECT_EQ(object->retain(), 2U) << "ours and this one";
    object->release();
    EXPECT_EQ(host().signals.remaining(), 0U);
}

TEST(ModuleMain, UnloadWithoutLoadDoesNothing) {
    fakehost::resetHost();
    int handle = 0;
    EXPECT_EQ(XBRModuleMain(&handle, 2), 1);
    XBRModuleMain(&handle, 7);
    EXPECT_TRUE(host().objects.log.empty());
}

TEST(ModuleMain, BrokenSkinFailsTheLoad) {
    fakehost::resetHost();
    host().objects.themeLoads = false;
    int handle = 0;
    EXPECT_EQ(XBRModuleMain(&handle, 1), 0);
    EXPECT_EQ(host().system.warnings, "ModuleComponent::loadTheme failed\n");
    void* service = nullptr;
    auto* factory = XBRGetClassFactory();
    EXPECT_EQ(
        factory->createInstance(brindlex::supportServiceClass().uid, xbr::IProgramService::kUid, &service),
        xbr::kUnexpected);
    host().objects.themeLoads = true;
    EXPECT_EQ(XBRModuleMain(&handle, 1), 1) << "a mended skin loads";
    EXPECT_THAT(host().objects.log, testing::Contains("theme resource://brindlex/skin"));
    EXPECT_EQ(XBRGetClassFactory(), factory);
    EXPECT_EQ(factory->countClasses(), 1);
    EXPECT_EQ(factory->borderVersion(), xbr::kBorderVersion);
    XBRModuleMain(&handle, 2);
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace
