#pragma once

#include "framework/abi/system.h"
#include "framework/support/objects/object.h"

namespace xbr::host {

class System final : public Object<ISystem> {
public:
    std::int64_t currentTime() const noexcept override;
    Result getTemporaryFolder(IString** out) noexcept override;
    void writeDebugWarning(Text message) noexcept override;
};

} // namespace xbr::host
