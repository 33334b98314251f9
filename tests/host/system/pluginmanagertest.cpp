#include "framework/abi/pluginmanager.h"

#include "framework/support/parts/classfactory.h"

#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

TEST(PlugInManagerTest, TheFactoryAddedLastWinsAndItsClassIsListedOnce) {
    auto& manager = *XBRGetPlugInManager();
    const auto tool = describe(uid("00000000-0000-0000-0000-000000000001"), "Tool", "a tool");
    const auto created = [&]() -> std::string {
        Ref<IString> made;
        manager.createInstance(tool.uid, IString::kUid, reinterpret_cast<void**>(made.out()));
        return made ? take(made) : "none";
    };
    std::vector<Ref<ClassFactory>> factories;
    for (const char* name : {"old", "young"}) {
        const auto factory = factories.emplace_back(make<ClassFactory>());
        factory->add(tool, [name] { return query<IObject>(make<String>(name).get()); });
        EXPECT_EQ(manager.addFactory(factory.get()), kOk);
        EXPECT_EQ(manager.addFactory(factory.get()), kFalse);
        EXPECT_EQ(created(), name);
        EXPECT_EQ(manager.countClasses(toText("Tool")), 1);
    }
    EXPECT_EQ(manager.countClasses(toText("Other")), 0);
    EXPECT_EQ(manager.classAt(toText("Tool"), 1, nullptr), nullptr);
    EXPECT_EQ(manager.removeFactory(factories[1].get()), kOk);
    EXPECT_EQ(manager.removeFactory(factories[1].get()), kFalse);
    EXPECT_EQ(created(), "old");
    EXPECT_EQ(manager.removeFactory(factories[0].get()), kOk);
    EXPECT_EQ(created(), "none");
}

} // namespace
} // namespace xbr::host::tests
