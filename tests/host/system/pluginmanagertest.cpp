#include "framework/abi/pluginmanager.h"

#include "framework/support/parts/classfactory.h"

#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

using Names = std::vector<std::string>;

const ClassDescription kOld[] = {describe(uid("00000000-0000-0000-0000-000000000001"), "Tool", "old first"),
                                 describe(uid("00000000-0000-0000-0000-000000000002"), "Tool", "old second")};
const ClassDescription kYoung = describe(kOld[0].uid, "Tool", "young first");

/// Creates texts that name the factory.
ClassFactory::Creator creatorOfText(const char* text) {
    return [text] { return query<IObject>(make<String>(text).get()); };
}

TEST(PlugInManagerTest, TheFactoryAddedLastWinsAndItsClassIsListedOnce) {
    auto& manager = *XBRGetPlugInManager();
    const auto create = [&](const ClassDescription& which) -> std::string {
        Ref<IString> made;
        const auto result =
            manager.createInstance(which.uid, IString::kUid, reinterpret_cast<void**>(made.out()));
        return result == kOk ? take(made) : result == kNoInterface ? "none" : "failed";
    };
    const auto names = [&](std::string_view category) {
        Names found;
        for (std::int32_t i = 0; i < manager.countClasses(toText(category)); ++i) {
            found.push_back(toString(manager.classAt(toText(category), i, nullptr)->name));
        }
        return found;
    };
    const auto attributes = make<Attributes>();
    const auto old = make<ClassFactory>();
    old->add(kOld[0], creatorOfText("old"));
    old->add(kOld[1], creatorOfText("old"));
    const auto young = make<ClassFactory>();
    young->add(kYoung, creatorOfText("young"), attributes);

    EXPECT_EQ(create(kYoung), "none");
    EXPECT_EQ(manager.addFactory(old.get()), kOk);
    EXPECT_EQ(manager.addFactory(young.get()), kOk);
    EXPECT_EQ(manager.addFactory(old.get()), kFalse);
    EXPECT_EQ(create(kYoung), "young");
    EXPECT_EQ(create(kOld[1]), "old");
    EXPECT_EQ(names("Tool"), (Names{"old second", "young first"}));
    EXPECT_EQ(names("Other"), Names{});
    const IAttributes* found = nullptr;
    EXPECT_EQ(manager.classAt(toText("Tool"), 2, &found), nullptr);
    EXPECT_NE(manager.classAt(toText("Tool"), 1, &found), nullptr);
    EXPECT_EQ(found, attributes.get());

    EXPECT_EQ(manager.removeFactory(young.get()), kOk);
    EXPECT_EQ(manager.removeFactory(young.get()), kFalse);
    EXPECT_EQ(create(kYoung), "old");
    EXPECT_EQ(manager.removeFactory(old.get()), kOk);
    EXPECT_EQ(create(kOld[1]), "none");
}

} // namespace
} // namespace xbr::host::tests
