#include "sandbox/pages/settings.h"

namespace sandbox {

std::string hostSettings(const ClientRegistration& client, const std::string& server) {
    return "[brindlex]\nServerURL=" + server + "\nUserURL=" + server + "/\nConsumerKey=" + client.id +
           "\nConsumerSecret=" + client.secret + "\nCallbackURL=" + client.redirectUri +
           "\nFeedURL=" + server + "/feed.atom\n";
}

} // namespace sandbox
