#include "host/net/http/webcredentials.h"

#include "framework/support/objects/text.h"
#include "host/base/textscan.h"
#include "host/net/http/request.h"

#include <QByteArray>

namespace xbr::host {

namespace {

/// RFC 7617: base64 of "user:password".
std::string basicValue(std::string_view userName, std::string_view password) {
    const std::string pair = std::string(userName) + ":" + std::string(password);
    return "Basic " + QByteArray::fromStdString(pair).toBase64().toStdString();
}

} // namespace

Result WebCredentials::queryInterface(const Uid& interfaceUid, void** out) noexcept {
    return interfaceUid == kUid ? answer(this, out)
                                : Object<IWebCredentials>::queryInterface(interfaceUid, out);
}

Result WebCredentials::set(Text userName, Text password, Text scheme) noexcept {
    const auto user = view(userName);
    const auto secret = view(password);
    if (hasControls(secret)) {
        return kInvalidArgument;
    }
    if (view(scheme) == "Bearer") {
        m_authorization = "Bearer " + std::string(secret);
        return kOk;
    }
    // A colon in the name would move the border between name and password (RFC 7617, section 2).
    if (view(scheme) != "Basic" || hasControls(user) || user.find(':') != std::string_view::npos) {
        return kInvalidArgument;
    }
    m_authorization = basicValue(user, secret);
    return kOk;
}

} // namespace xbr::host
