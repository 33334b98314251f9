#include "framework/support/parts/xhrclient.h"

#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using fakehost::host;
using Client = xbr::Ref<xbr::XHRClient>;

/// Drops the client as soon as it is free again.
class Dropper final : public xbr::Object<xbr::IObserver> {
public:
    explicit Dropper(Client& client) : m_client(client) {}
    void notify(xbr::ISubject*, xbr::IMessage*) noexcept override {
        if (m_client && !m_client->isBusy()) {
            m_client.reset();
        }
    }

private:
    Client& m_client;
};

TEST(XHRClient, NobodyIsCalledForAClientThatIsGone) {
    fakehost::resetHost();
    Client client;
    const auto dropper = xbr::make<Dropper>(client);
    // Its handler lets it go, or before its handler's turn who observes whether it is busy.
    for (const bool isObserved : {false, true}) {
        client = xbr::make<xbr::XHRClient>("Client");
        int calls = 0;
        const auto handler = [&](const auto&, auto&) {
            ++calls;
            client.reset();
        };
        client->send(handler, "GET", xbr::Url("https://service/path"), nullptr, "");
        if (isObserved) {
            host().signals.addObserver(client.get(), dropper.get());
        }
        host().web.answer(200);
        EXPECT_FALSE(client);
        EXPECT_EQ(calls, isObserved ? 0 : 1);
    }
    client = xbr::make<xbr::XHRClient>("Client");
    client->send([](const auto&, auto&) { ADD_FAILURE(); }, "GET", xbr::Url("https://service"), nullptr, "");
    client->cancel();
    EXPECT_FALSE(client->isBusy() || host().web.isInFlight());
    host().signals.pump();
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace
