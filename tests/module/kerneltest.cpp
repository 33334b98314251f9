#include "framework/abi/module.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "module/classtable.h"
#include "module/modulekernel.h"
#include "tests/fakehost/fakehost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using brindlex::ModuleKernel;
using brindlex::ModulePart;
using fakehost::host;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> g_calls;
std::string g_failing; ///< what fails

bool record(const char* call) {
    g_calls.emplace_back(call);
    return call != g_failing;
}

constexpr ModulePart kParts[] = {
    {[] { return record("begin 1"); }, [] { record("end 1"); }},
    {[] { return record("begin 2"); }, [] { record("end 2"); }},
};

class KernelTest : public testing::Test {
protected:
    KernelTest() {
        fakehost::resetHost();
        g_failing.clear();
    }

    /// What is called by a load that ends like this, or by an unload.
    std::vector<std::string> load(bool succeeds) {
        g_calls.clear();
        EXPECT_EQ(kernel->load(this), succeeds);
        return g_calls;
    }
    std::vector<std::string> unload() {
        g_calls.clear();
        kernel->unload();
        return g_calls;
    }

    xbr::Ref<ModuleKernel> kernel = xbr::make<ModuleKernel>(kParts, [](std::int32_t argument) {
        return record(argument == 1 ? "start" : argument == 2 ? "stop" : "?");
    });
};

TEST_F(KernelTest, LoadsInOrderAndUnloadsInReverseEachTime) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_THAT(load(true), ElementsAre("begin 1", "begin 2", "start")) << i;
        EXPECT_THAT(load(true), IsEmpty()) << "a second load runs nothing again";
        EXPECT_THAT(unload(), ElementsAre("stop", "end 2", "end 1")) << i;
        EXPECT_THAT(unload(), IsEmpty()) << "there is nothing to unload";
    }
}

TEST_F(KernelTest, FailedLoadCanBeUndoneAndTriedAgain) {
    g_failing = "start";
    EXPECT_THAT(load(false), ElementsAre("begin 1", "begin 2", "start", "end 2", "end 1"));
    EXPECT_THAT(unload(), IsEmpty()) << "undone already";
    g_failing = "begin 2";
    EXPECT_THAT(load(false), ElementsAre("begin 1", "begin 2")) << "stops at once";
    EXPECT_THAT(unload(), ElementsAre("stop", "end 2", "end 1"));
    g_failing.clear();
    EXPECT_THAT(load(true), ElementsAre("begin 1", "begin 2", "start"));
}

TEST_F(KernelTest, TeardownReleasesObjectsAndForgetsMessages) {
    const auto message = xbr::make<xbr::Message>("late");
    kernel->load(this);
    const auto object = xbr::make<xbr::Message>("kept");
    kernel->addObject(xbr::query<xbr::IObject>(object.get()));
    host().signals.post(kernel.get(), message.get(), 0);
    kernel->unload();
    EXPECT_EQ(object->retain(), 2U) << "ours and this one";
    object->release();
    EXPECT_EQ(host().signals.remaining(), 0U);
}

TEST(ModuleMain, UnloadWithoutLoadDoesNothing) {
    fakehost::resetHost();
    int handle = 0;
    EXPECT_EQ(XBRModuleMain(&handle, 2), 1);
    EXPECT_EQ(XBRModuleMain(&handle, 7), 1) << "a reason that nobody knows yet";
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
    EXPECT_EQ(xbr::toString(xbr::query<xbr::IModuleInfo>(factory)->version()), BRINDLEX_VERSION);
    XBRModuleMain(&handle, 2);
    EXPECT_EQ(host().signals.remaining(), 0U);
}

TEST(ModuleMain, SecondCopyIsRefusedAndHarmsNobody) {
    fakehost::resetHost();
    host().files.resources = {"brindlex"};
    int handle = 0;
    EXPECT_EQ(XBRModuleMain(&handle, 1), 0);
    XBRModuleMain(&handle, 2);
    EXPECT_TRUE(host().files.resources.contains("brindlex")) << "those of the first copy";
    EXPECT_TRUE(host().objects.factories.empty());
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace
