#include "module/resources.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

constexpr std::string_view kName = "brindlex";

bool g_isRegistered = false; ///< by this module: nobody else's resources may be taken back

} // namespace

bool registerResources() {
    const auto archive = resourceArchive();
    g_isRegistered =
        XBRGetFileSystem()->registerResources(xbr::toText(kName), archive.data(), archive.size()) == xbr::kOk;
    return g_isRegistered;
}

void unregisterResources() {
    if (g_isRegistered) {
        XBRGetFileSystem()->unregisterResources(xbr::toText(kName));
    }
}

} // namespace brindlex
