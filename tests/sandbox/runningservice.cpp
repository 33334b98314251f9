#include "tests/sandbox/runningservice.h"

#include "sandbox/http/form.h"
#include "sandbox/http/server.h"
#include "sandbox/http/text.h"
#include "sandbox/service.h"
#include "sandbox/visitor.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>
#include <zip.h>

#include <fstream>
#include <sstream>
#include <stdlib.h>
#include <thread>

namespace {

const std::string kBoundary = "----------------------------XXBOUNDARY0A1F";

} // namespace

struct RunningService::Parts {
    explicit Parts(const std::filesystem::path& folder) : service({}, folder / "inbox", folder / "log") {}

    sandbox::Service service;
    sandbox::Server server{[this](sandbox::Exchange& exchange) { return service.handle(exchange); }};
    int port = server.open(0);
    httplib::Client client{"127.0.0.1", port};
    std::thread thread{[this] { server.run(); }};
};

std::filesystem::path RunningService::makeFolder() {
    auto pattern = (std::filesystem::temp_directory_path() / "sandbox-test-XXXXXX").string();
    EXPECT_NE(::mkdtemp(pattern.data()), nullptr);
    return pattern;
}

RunningService::RunningService() : m_parts(std::make_unique<Parts>(m_folder)), m_port(m_parts->port) {
    EXPECT_GT(m_port, 0);
}

RunningService::~RunningService() {
    m_parts->server.stop();
    m_parts->thread.join();
    std::filesystem::remove_all(m_folder);
}

httplib::Client& RunningService::client() {
    return m_parts->client;
}

std::string RunningService::authorizeUrl() const {
    return origin() +
           "/oauth/"
           "authorize?client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=code";
}

httplib::Result RunningService::exchange(const std::string& code) {
    const auto body = "client_id=brindlex-demo&client_secret=brindlex-demo-secret&redirect_uri="
                      "brindlex%3A%2F%2Fauthorize&grant_type=authorization_code&code=" +
                      sandbox::percentEncode(code);
    return client().Post("/oauth/token", body, "application/x-www-form-urlencoded");
}

std::string RunningService::signIn() {
    const sandbox::Account account;
    sandbox::Visitor visitor(account.user, account.password, true);
    const auto reply = exchange(queryValue(visitor.authorize(authorizeUrl()), "code"));
    EXPECT_EQ(reply->status, 200);
    return nlohmann::json::parse(reply->body).at("access_token");
}

httplib::Result RunningService::upload(const std::string& token, const std::string& archive) {
    const auto body = "--" + kBoundary +
                      "\r\nContent-Disposition: form-data; name=\"payload\"; filename=\"payload.zip\"\r\n"
                      "Content-Transfer-Encoding: binary\r\nContent-Type: application/octet-stream\r\n\r\n" +
                      archive + "\r\n--" + kBoundary + "--\r\n";
    return client().Post("/api/frontstage/release_ingestion", {{"Authorization", "Bearer " + token}}, body,
                         "multipart/form-data; boundary=" + kBoundary);
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

std::string zipOf(const Entries& entries) {
    const auto file =
        std::filesystem::temp_directory_path() / ("sandbox-test-" + std::to_string(::getpid()) + ".zip");
    zip_t* archive = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const auto& [name, data] : entries) {
        zip_file_add(archive, name.c_str(), zip_source_buffer(archive, data.data(), data.size(), 0),
                     ZIP_FL_ENC_UTF_8);
    }
    EXPECT_EQ(zip_close(archive), 0);
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    std::filesystem::remove(file);
    return bytes.str();
}

std::string metadataFor(const std::string& audioFile) {
    const nlohmann::ordered_json artist = {{"name", "The Lamps"}, {"roles", {"Main Artist"}}};
    const nlohmann::ordered_json song = {{"title", "Opening"},
                                         {"audio_filename", audioFile},
                                         {"artists", nlohmann::ordered_json::array({artist})}};
    const nlohmann::ordered_json name = {{"name", "The Lamps"}};
    return nlohmann::ordered_json({{"external_release_id", ""},
                                   {"client_id", "brindlex-demo"},
                                   {"title", "Night Drive"},
                                   {"main_artists", nlohmann::ordered_json::array({name})},
                                   {"primary_genre", "Electronica"},
                                   {"songs", nlohmann::ordered_json::array({song})}})
        .dump();
}

std::string queryValue(const std::string& url, const std::string& name) {
    const auto form = sandbox::Form::parse(url.substr(url.find('?') + 1));
    return form ? form->value(name) : "";
}
