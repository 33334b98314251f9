#pragma once

#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"
#include "host/net/http/request.h"

#include <string>

namespace xbr::host {

/// Who a request is sent for, as the value of its Authorization header.
class WebCredentials final : public Object<IWebCredentials> {
public:
    /// Known to this library only: a request asks for it to tell its own credentials, whose content it may
    /// read, from foreign objects with the same interface.
    static constexpr Uid kUid = uid("5a0d7b7e-3c7e-4f0e-9d55-1f1c6c2a9b1e");

    Result queryInterface(const Uid& interfaceUid, void** out) noexcept override;
    Result set(Text userName, Text password, Text scheme) noexcept override;

    bool isSet() const noexcept { return !m_authorization.empty(); }

    /// The header's value, for example "Bearer abc".
    std::string_view authorization() const noexcept { return m_authorization; }

private:
    std::string m_authorization;
};

} // namespace xbr::host
