#include "tests/sandbox/runningservice.h"

#include "sandbox/http/server.h"
#include "sandbox/pages/settings.h"
#include "sandbox/service.h"

#include <gtest/gtest.h>
#include <httplib.h>

#include <stdlib.h>
#include <thread>

struct RunningService::Parts {
    explicit Parts(const std::filesystem::path& folder) : service({}, folder / "inbox", folder / "log") {}

    sandbox::Service service;
    sandbox::Server server{[this](sandbox::Exchange& exchange) { return service.handle(exchange); }};
    int port = server.open(0);
    httplib::Client client{"127.0.0.1", port};
    std::thread thread{[this] { server.run(); }};
};

RunningService::RunningService() {
    auto pattern = (std::filesystem::temp_directory_path() / "sandbox-test-XXXXXX").string();
    EXPECT_NE(::mkdtemp(pattern.data()), nullptr);
    m_folder = pattern;
    m_parts = std::make_unique<Parts>(m_folder);
    EXPECT_GT(m_parts->port, 0);
}

RunningService::~RunningService() {
    m_parts->server.stop();
    m_parts->thread.join();
    std::filesystem::remove_all(m_folder);
}

std::string RunningService::origin() const {
    return "http://127.0.0.1:" + std::to_string(m_parts->port);
}

std::string RunningService::settings() const {
    return sandbox::hostSettings({}, origin());
}

std::string RunningService::authorizeUrl() const {
    return origin() + "/oauth/authorize?client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize"
                      "&response_type=code";
}

httplib::Client& RunningService::client() {
    return m_parts->client;
}

void RunningService::addFault(const std::string& json) {
    EXPECT_EQ(client().Post("/control/fault", json, "application/json")->status, 200);
}

void RunningService::clearFaults() {
    client().Delete("/control/fault");
}

std::string RunningService::log() {
    return client().Get("/control/log")->body;
}

void RunningService::clearLog() {
    client().Delete("/control/log");
}
