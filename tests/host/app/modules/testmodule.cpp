// A module for the tests of the loader, which is wrong in the way that the test program says.

#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"

// In the test program; not where others load the module.
extern "C" void recordModuleEvent(const char* event) __attribute__((weak));
extern "C" const char* testModuleKind() __attribute__((weak));

namespace {

using namespace xbr;

bool isKind(std::string_view kind) {
    return testModuleKind && testModuleKind() == kind;
}

void record(const char* event) {
    if (recordModuleEvent) {
        recordModuleEvent(event);
    }
}

class Thing final : public Object<IObject> {};

struct Service final : Object<IProgramService> {
    ~Service() override { record("released"); }

    Result initialise(IHostContext* context) noexcept override {
        record(toString(context->hostName()).c_str());
        return isKind("failing") ? kUnexpected : kOk;
    }
    Result getClasses(IClassFactory** out) noexcept override {
        static const auto thing = describe(uid("5a4d2a4e-57b5-4d13-a1b7-2f53a0c3f002"), "Test", "Thing");
        auto classes = make<ClassFactory>();
        classes->add(thing, creatorOf<Thing>());
        *out = classes.detach();
        return kOk;
    }
    Result terminate() noexcept override {
        record("terminated");
        return kOk;
    }
};

struct Factory final : Object<IClassFactory, IModuleInfo> {
    std::uint32_t borderVersion() const noexcept override {
        return kBorderVersion + (isKind("newer") ? 0x0001'0000U : 0U);
    }
    std::int32_t countClasses() const noexcept override { return isKind("serviceless") ? 0 : 1; }
    const ClassDescription* classAt(std::int32_t index) const noexcept override {
        static const auto service =
            describe(uid("5a4d2a4e-57b5-4d13-a1b7-2f53a0c3f001"), "ProgramService", "Test");
        return index >= 0 && index < countClasses() ? &service : nullptr;
    }
    const IAttributes* attributesAt(std::int32_t) const noexcept override { return nullptr; }
    Text version() const noexcept override { return toText("1.2.3"); }
    Result createInstance(const Uid&, const Uid& interfaceUid, void** out) noexcept override {
        return make<Service>()->queryInterface(interfaceUid, out);
    }
};

} // namespace

XBR_API std::int32_t XBRModuleMain(void* handle, std::int32_t reason) noexcept {
    record(reason == 1 ? "load" : "unload");
    return handle && !isKind("refusing") ? 1 : 0;
}

XBR_API xbr::IClassFactory* XBRGetClassFactory() noexcept {
    static const auto factory = make<Factory>();
    return factory.get();
}
