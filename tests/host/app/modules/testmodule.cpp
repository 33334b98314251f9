// A module for the tests of the loader. Each build of it is wrong in the way that its macro names.

#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"

#ifdef TEST_MODULE_EMPTY

XBR_API int testModuleNothing() {
    return 0;
}

#else

/// In the test program.
extern "C" void recordModuleEvent(const char* event) __attribute__((weak));

namespace {

using namespace xbr;

constexpr Uid kService = uid("5a4d2a4e-57b5-4d13-a1b7-2f53a0c3f001");
constexpr Uid kThing = uid("5a4d2a4e-57b5-4d13-a1b7-2f53a0c3f002");

void record(const char* event) {
    if (recordModuleEvent) {
        recordModuleEvent(event);
    }
}

class Thing final : public Object<IObject> {};

class Service final : public Object<IProgramService> {
public:
    ~Service() override { record("released"); }

    Result initialise(IHostContext* context) noexcept override {
        record(toString(context->hostName()).c_str());
#ifdef TEST_MODULE_FAILING
        return kUnexpected;
#else
        return kOk;
#endif
    }
    Result getClasses(IClassFactory** out) noexcept override {
        static const ClassDescription thing{0, kThing, toText("Test"), toText("Thing"), {}, {}};
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

/// The module's factory; of a newer border for one build.
class Factory final : public Object<IClassFactory, IModuleInfo> {
public:
    std::uint32_t borderVersion() const noexcept override {
#ifdef TEST_MODULE_NEWER
        return kBorderVersion + 0x0001'0000U;
#else
        return kBorderVersion;
#endif
    }
    std::int32_t countClasses() const noexcept override {
#ifdef TEST_MODULE_SERVICELESS
        return 0;
#else
        return 1;
#endif
    }
    const ClassDescription* classAt(std::int32_t index) const noexcept override {
        static const ClassDescription service{0, kService, toText("ProgramService"), toText("Test"), {}, {}};
        return index >= 0 && index < countClasses() ? &service : nullptr;
    }
    const IAttributes* attributesAt(std::int32_t) const noexcept override {
        return nullptr;
    }
    Text version() const noexcept override {
        return toText("1.2.3");
    }
    Result createInstance(const Uid&, const Uid& interfaceUid, void** out) noexcept override {
        return make<Service>()->queryInterface(interfaceUid, out);
    }
};

} // namespace

XBR_API std::int32_t XBRModuleMain(void* handle, std::int32_t reason) noexcept {
    record(reason == 1 ? "load" : "unload");
#ifdef TEST_MODULE_REFUSING
    static_cast<void>(handle);
    return 0;
#else
    return handle ? 1 : 0;
#endif
}

XBR_API xbr::IClassFactory* XBRGetClassFactory() noexcept {
    static const auto factory = make<Factory>();
    return factory.get();
}

#endif
