#include "host/system/package/packagehandler.h"

#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/mainthread.h"
#include "host/system/package/zippackage.h"

namespace xbr::host {

Result PackageHandler::createPackage(const Uid& type, Text url, IPackage** out) noexcept {
    assertMainThread();
    *out = nullptr;
    auto path = localPath(view(url));
    if (!(type == kZipPackage) || !path || path->ends_with('/')) {
        return kInvalidArgument;
    }
    *out = make<ZipPackage>(std::move(*path)).detach();
    return kOk;
}

} // namespace xbr::host

xbr::IPackageHandler* XBRGetPackageHandler() noexcept {
    static auto* const handler = xbr::make<xbr::host::PackageHandler>().detach();
    return handler;
}
