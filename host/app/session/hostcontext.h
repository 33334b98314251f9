#pragma once

#include "framework/abi/module.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"

#include <string>

namespace xbr::host {

/// Name and version of this program, for modules.
class HostContext final : public Object<IHostContext> {
public:
    HostContext(std::string name, std::string version)
        : m_name(std::move(name)),
          m_version(std::move(version)) {}

    std::uint32_t borderVersion() const noexcept override { return kBorderVersion; }
    Text hostName() const noexcept override { return toText(m_name); }
    Text hostVersion() const noexcept override { return toText(m_version); }

private:
    std::string m_name;
    std::string m_version;
};

} // namespace xbr::host
