#include "module/resources.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/text.h"

// The archive that the build packs from resources/, see resourcedata.S.
extern "C" const char kBrindlexResourcesBegin[];
extern "C" const char kBrindlexResourcesEnd[];

namespace brindlex {

namespace {

constexpr std::string_view kName = "brindlex";

} // namespace

bool registerResources(void*, void*) {
    const auto size = static_cast<std::uint64_t>(kBrindlexResourcesEnd - kBrindlexResourcesBegin);
    return XBRGetFileSystem()->registerResources(xbr::toText(kName), kBrindlexResourcesBegin, size) ==
           xbr::kOk;
}

void unregisterResources(void*) {
    XBRGetFileSystem()->unregisterResources(xbr::toText(kName));
}

} // namespace brindlex
