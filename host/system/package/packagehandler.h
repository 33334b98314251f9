#pragma once

#include "framework/abi/package.h"
#include "framework/support/objects/object.h"

namespace xbr::host {

class PackageHandler final : public Object<IPackageHandler> {
public:
    Result createPackage(const Uid& type, Text url, IPackage** out) noexcept override;
};

} // namespace xbr::host
