#include "framework/abi/module.h"
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

std::string g_calls;
std::string g_failing; ///< what fails

bool record(const std::string& call) {
    g_calls += call + " ";
    return call != g_failing;
}

constexpr ModulePart kParts[] = {
    {[] { return record("begin1"); }, [] { record("end1"); }},
    {[] { return record("begin2"); }, [] { record("end2"); }},
};

TEST(ModuleKernel, LoadsInOrderAndUnloadsInReverseAlsoAfterAFailure) {
    fakehost::resetHost();
    const auto kernel = xbr::make<ModuleKernel>(kParts, [](std::int32_t argument) {
        return record(argument == 1 ? "start" : argument == 2 ? "stop" : "?");
    });
    constexpr bool kLoad = true;
    constexpr bool kUnload = false;
    // What fails in it, and what is called.
    for (const auto& [isLoad, failing, calls] : fakehost::Rows<bool, const char*, const char*>{
             {kLoad, "", "begin1 begin2 start "},
             {kLoad, "", ""}, // nothing runs again
             {kUnload, "", "stop end2 end1 "},
             {kUnload, "", ""},
             {kLoad, "start", "begin1 begin2 start end2 end1 "},
             {kUnload, "", ""},
             {kLoad, "begin2", "begin1 begin2 "},
             {kUnload, "", "stop end2 end1 "},
             {kLoad, "", "begin1 begin2 start "},
         }) {
        g_calls.clear();
        g_failing = failing;
        const bool isDone = isLoad ? kernel->load(&g_calls) : (kernel->unload(), true);
        EXPECT_EQ(isDone, g_failing.empty());
        EXPECT_EQ(g_calls, calls);
    }
    kernel->unload();
}

TEST(ModuleMain, BrokenSkinFailsTheLoad) {
    fakehost::resetHost();
    int handle = 0;
    EXPECT_EQ(XBRModuleMain(&handle, 2), 1) << "there is nothing to unload";
    EXPECT_EQ(XBRModuleMain(&handle, 7), 1) << "a reason that nobody knows yet";
    EXPECT_TRUE(host().objects.log.empty());
    host().failing = {"load"};
    EXPECT_EQ(XBRModuleMain(&handle, 1), 0);
    EXPECT_EQ(host().system.warnings, "ModuleComponent::loadTheme failed\n");
    void* service = nullptr;
    auto* const factory = XBRGetClassFactory();
    EXPECT_EQ(
        factory->createInstance(brindlex::supportServiceClass().uid, xbr::IProgramService::kUid, &service),
        xbr::kUnexpected);
    host().failing.clear();
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
