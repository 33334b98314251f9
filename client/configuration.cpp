#include "client/configuration.h"

#include "framework/abi/hostclasses.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"

namespace brindlex {

namespace {

constexpr std::string_view kId = "brindlex";
constexpr std::int32_t kProfile = 0;
constexpr std::int32_t kRead = 1;

} // namespace

void applyConfiguration(OAuth2Client& client, const xbr::Attributes& attributes) {
    ServiceConfiguration configuration;
    configuration.serverUrl = xbr::Url(attributes.getString("ServerURL"));
    configuration.userUrl = xbr::Url(attributes.getString("UserURL"));
    configuration.consumerKey = xbr::toAscii(attributes.getString("ConsumerKey"));
    configuration.consumerSecret = xbr::toAscii(attributes.getString("ConsumerSecret"));
    configuration.callbackUrl = xbr::Url(attributes.getString("CallbackURL"));
    configuration.joinToken = attributes.getString("JoinToken");
    client.setConfiguration(std::move(configuration));
}

void loadConfiguration(OAuth2Client& client) {
    const auto store = xbr::createHostObject<xbr::IConfigurationStore>();
    const auto attributes = xbr::make<xbr::Attributes>();
    const std::string title = xbr::translate("Brindlex Client");
    if (store &&
        store->load(attributes.get(), xbr::toText(kId), xbr::toText(title), kProfile, kRead) == xbr::kOk) {
        applyConfiguration(client, *attributes);
    }
}

} // namespace brindlex
