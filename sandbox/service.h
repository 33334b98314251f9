#pragma once

#include "sandbox/control.h"
#include "sandbox/http/exchange.h"
#include "sandbox/http/faults.h"
#include "sandbox/http/requestlog.h"
#include "sandbox/pages/authorization.h"
#include "sandbox/pages/grants.h"
#include "sandbox/pages/news.h"
#include "sandbox/pages/settings.h"
#include "sandbox/upload/inbox.h"
#include "sandbox/upload/ingestion.h"

#include <filesystem>
#include <string>
#include <vector>

namespace sandbox {

// The whole service, apart from the network: finds the endpoint for a request, lets faults happen, keeps the
// log. May be called from several threads.
class Service {
public:
    // Throws std::exception when the inbox or the log cannot be used.
    Service(const Settings& settings, const std::filesystem::path& inbox, const std::filesystem::path& log);

    Reply handle(Exchange& exchange);

private:
    struct Route {
        std::string method;
        std::string path;
        Handler handler;
    };

    void addRoutes();
    void addControlRoutes();
    Reply route(Exchange& exchange) const;
    Reply serve(Exchange& exchange);
    Reply showAccount(const Exchange& exchange) const;
    Reply ingest(Exchange& exchange) const;

    Settings m_settings;
    Grants m_grants;
    Inbox m_inbox;
    RequestLog m_log;
    Faults m_faults;
    Authorization m_authorization;
    Ingestion m_ingestion;
    Control m_control;
    News m_news;
    std::vector<Route> m_routes;
};

} // namespace sandbox
