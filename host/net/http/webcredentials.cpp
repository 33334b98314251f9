#include "host/net/http/webcredentials.h"

#include "framework/support/objects/text.h"
#include "host/base/textscan.h"
#include "host/net/http/request.h"

#include <QByteArray>

namespace xbr::host {

namespace {

/// RFC 7617: base64 of "user:password".
std::string basicValue(std::string_view userName, std::string_view password) {
    QByteArray pair;
    const std::size_t length = userName.size() + 1 + password.size();
    pair.reserve(static_cast<qsizetype>(length));
    pair.append(userName.data(), static_cast<qsizetype>(userName.size()));
    pair.append(':');
    pair.append(password.data(), static_cast<qsizetype>(password.size()));
    QByteArray encoded = pair.toBase64();
    std::string value;
    value.reserve(6 + static_cast<std::size_t>(encoded.size()));
    value.append("Basic ").append(encoded.constData(), static_cast<std::size_t>(encoded.size()));
    explicit_bzero(pair.data(), static_cast<std::size_t>(pair.size()));
    explicit_bzero(encoded.data(), static_cast<std::size_t>(encoded.size()));
    return value;
}

std::string bearerValue(std::string_view token) {
    std::string value;
    value.reserve(7 + token.size());
    value.append("Bearer ").append(token);
    return value;
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
        std::string value = bearerValue(secret);
        m_authorization.assign(value);
        Secret::wipe(value);
        return kOk;
    }
    // A colon in the name would move the border between name and password (RFC 7617, section 2).
    if (view(scheme) != "Basic" || hasControls(user) || user.find(':') != std::string_view::npos) {
        return kInvalidArgument;
    }
    std::string value = basicValue(user, secret);
    m_authorization.assign(value);
    Secret::wipe(value);
    return kOk;
}

} // namespace xbr::host
