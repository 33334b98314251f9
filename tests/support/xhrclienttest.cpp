#include "framework/support/parts/xhrclient.h"

#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using fakehost::host;

class XHRClientTest : public testing::Test {
protected:
    XHRClientTest() { fakehost::resetHost(); }

    xbr::XHRClient::Handler recorder() {
        return [this](const xbr::IMessage& message, xbr::IWebRequest&) {
            events.push_back(xbr::toString(message.name()));
        };
    }

    std::vector<std::string> events;
};

const xbr::Url kUrl("https://service/path");

TEST_F(XHRClientTest, HandlerMayDestroyTheClient) {
    auto client = xbr::make<xbr::XHRClient>("Client");
    client->send([&](const auto&, auto&) { client.reset(); }, "GET", kUrl, nullptr, "");
    host().web.answer(200);
    EXPECT_FALSE(client);
    EXPECT_EQ(host().signals.remaining(), 0U);
}

/// Drops the client as soon as it is free again.
class Dropper final : public xbr::Object<xbr::IObserver> {
public:
    explicit Dropper(xbr::Ref<xbr::XHRClient>& client) : m_client(client) {}
    void notify(xbr::ISubject*, xbr::IMessage*) noexcept override {
        if (m_client && !m_client->isBusy()) {
            m_client.reset();
        }
    }

private:
    xbr::Ref<xbr::XHRClient>& m_client;
};

TEST_F(XHRClientTest, NobodyIsCalledForAClientThatIsGone) {
    auto client = xbr::make<xbr::XHRClient>("Client");
    client->send(recorder(), "GET", kUrl, nullptr, "");
    const auto dropper = xbr::make<Dropper>(client);
    host().signals.addObserver(client.get(), dropper.get());
    host().web.answer(200); // the observer of the busy state drops the client before its handler's turn
    EXPECT_FALSE(client);

    auto second = xbr::make<xbr::XHRClient>("Client");
    second->send(recorder(), "GET", kUrl, nullptr, "");
    second->cancel();
    EXPECT_FALSE(second->isBusy());
    EXPECT_FALSE(host().web.isInFlight());
    host().signals.pump();
    EXPECT_TRUE(events.empty());
}

} // namespace
