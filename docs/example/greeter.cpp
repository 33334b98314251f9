// The smallest module that does something: an entry of the publish menu that tells the developer how many
// songs it got.

#include "framework/abi/publisher.h"
#include "framework/abi/system.h"
#include "framework/support/parts/classfactory.h"

namespace {

// UIDs are made once, by `uuidgen` for example, and never change: hosts remember them.
const auto kPublisher =
    xbr::describe(xbr::uid("706b6f29-63c0-4f53-92e6-5d6a7ddf3651"), "Publisher", "Greet the songs");
const auto kService =
    xbr::describe(xbr::uid("44663d67-0c58-483d-95dc-c0cea815c8bf"), "ProgramService", "Greeter");

class Publisher final : public xbr::Object<xbr::IPublisher> {
public:
    xbr::Result acceptFileType(xbr::IFileType**) noexcept override { return xbr::kOk; }

    xbr::Result publish(xbr::IObjectIterator* items) noexcept override {
        int count = 0;
        for (xbr::Ref<xbr::IObject> song; items->next(song.out()) == xbr::kOk;) {
            ++count;
        }
        XBRGetSystem()->writeDebugWarning(xbr::toText("Hello, " + std::to_string(count) + " songs\n"));
        return xbr::kOk;
    }
};

class Service final : public xbr::Object<xbr::IProgramService> {
public:
    xbr::Result initialise(xbr::IHostContext* host) noexcept override {
        return xbr::borderMajor(host->borderVersion()) == xbr::borderMajor(xbr::kBorderVersion)
                   ? xbr::kOk
                   : xbr::kUnexpected;
    }
    xbr::Result getClasses(xbr::IClassFactory** out) noexcept override {
        auto classes = xbr::make<xbr::ClassFactory>();
        classes->add(kPublisher, xbr::creatorOf<Publisher>());
        *out = classes.detach();
        return xbr::kOk;
    }
    xbr::Result terminate() noexcept override { return xbr::kOk; }
};

} // namespace

std::int32_t XBRModuleMain(void*, std::int32_t) noexcept {
    return 1; // nothing to begin, nothing to end
}

xbr::IClassFactory* XBRGetClassFactory() noexcept {
    static const auto factory = xbr::make<xbr::ClassFactory>();
    if (factory->countClasses() == 0) {
        factory->add(kService, xbr::creatorOf<Service>());
    }
    return factory.get();
}
