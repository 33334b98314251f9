#include "framework/abi/pluginmanager.h"

#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace xbr::host::tests {
namespace {

constexpr Uid kFirst = uid("00000000-0000-0000-0000-000000000001");
constexpr Uid kSecond = uid("00000000-0000-0000-0000-000000000002");

/// Creates texts that name the factory.
class Factory final : public Object<IClassFactory> {
public:
    Factory(std::string name, std::vector<ClassDescription> classes)
        : m_name(std::move(name)),
          m_classes(std::move(classes)) {}

    std::uint32_t borderVersion() const noexcept override { return kBorderVersion; }
    std::int32_t countClasses() const noexcept override {
        return static_cast<std::int32_t>(m_classes.size());
    }
    const ClassDescription* classAt(std::int32_t index) const noexcept override {
        return index >= 0 && index < countClasses() ? &m_classes[static_cast<std::size_t>(index)] : nullptr;
    }
    const IAttributes* attributesAt(std::int32_t index) const noexcept override {
        return index == 0 ? m_attributes.get() : nullptr;
    }
    Result createInstance(const Uid& /*classUid*/, const Uid& interfaceUid, void** out) noexcept override {
        return make<String>(m_name)->queryInterface(interfaceUid, out);
    }

private:
    std::string m_name;
    std::vector<ClassDescription> m_classes;
    Ref<Attributes> m_attributes = make<Attributes>();
};

ClassDescription description(const Uid& classUid, std::string_view category, std::string_view name) {
    return {0, classUid, toText(category), toText(name), {}, {}};
}

TEST(PlugInManagerTest, TheFactoryAddedLastWinsAndItsClassIsListedOnce) {
    auto& manager = *XBRGetPlugInManager();
    const auto create = [&](const Uid& classUid) -> std::string {
        Ref<IString> made;
        const auto result =
            manager.createInstance(classUid, IString::kUid, reinterpret_cast<void**>(made.out()));
        return result == kOk ? take(made) : result == kNoInterface ? "none" : "failed";
    };
    const auto names = [&](std::string_view category) {
        std::vector<std::string> found(static_cast<std::size_t>(manager.countClasses(toText(category))));
        for (std::size_t i = 0; i < found.size(); ++i) {
            found[i] =
                toString(manager.classAt(toText(category), static_cast<std::int32_t>(i), nullptr)->name);
        }
        return found;
    };
    using Names = std::vector<std::string>;
    const auto old = make<Factory>("old", std::vector{description(kFirst, "Tool", "old first"),
                                                      description(kSecond, "Tool", "old second")});
    const auto young = make<Factory>("young", std::vector{description(kFirst, "Tool", "young first")});

    EXPECT_EQ(create(kFirst), "none");
    EXPECT_EQ(manager.addFactory(old.get()), kOk);
    EXPECT_EQ(manager.addFactory(young.get()), kOk);
    EXPECT_EQ(manager.addFactory(old.get()), kFalse);
    EXPECT_EQ(create(kFirst), "young");
    EXPECT_EQ(create(kSecond), "old");
    EXPECT_EQ(names("Tool"), (Names{"old second", "young first"}));
    EXPECT_EQ(names("Other"), Names{});

    const IAttributes* attributes = nullptr;
    EXPECT_EQ(manager.classAt(toText("Tool"), 2, &attributes), nullptr);
    EXPECT_NE(manager.classAt(toText("Tool"), 1, &attributes), nullptr);
    EXPECT_EQ(attributes, young->attributesAt(0));

    EXPECT_EQ(manager.removeFactory(young.get()), kOk);
    EXPECT_EQ(manager.removeFactory(young.get()), kFalse);
    EXPECT_EQ(create(kFirst), "old");
    EXPECT_EQ(manager.removeFactory(old.get()), kOk);
    EXPECT_EQ(create(kSecond), "none");
}

} // namespace
} // namespace xbr::host::tests
