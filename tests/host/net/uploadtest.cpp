// Large bodies on their way: progress, servers that answer early, hang up or read slowly.

#include "host/net/hostnet.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <QElapsedTimer>
#include <gmock/gmock.h>

namespace xbr::host::test {

namespace {

using ::testing::HasSubstr;

constexpr std::size_t kSize = std::size_t{32} << 20U;

Ref<MemoryStream> largeBody() {
    static const std::string kPiece(std::size_t{1} << 20U, 'b');
    auto body = make<MemoryStream>();
    for (std::size_t size = 0; size < kSize; size += kPiece.size()) {
        body->write(kPiece);
    }
    rewind(*body);
    return body;
}

Exchanged upload(const Script& script) {
    const ScriptedServer server(script);
    return exchange(*openRequest("POST", server.url()), largeBody().get());
}

TEST(Upload, progressOfASlowReader) {
    QElapsedTimer clock;
    clock.start();
    const Exchanged result = upload([](Peer& peer) {
        peer.readHead();
        for (std::size_t left = kSize; left > 0; left -= kSize / 64) {
            peer.discard(kSize / 64);
            peer.sleep(15);
        }
        peer.send(answer(200, "done"));
    });
    const double seconds = static_cast<double>(clock.elapsed()) / 1000;
    ASSERT_EQ(result.status, 200);
    ASSERT_FALSE(result.fractions.empty());
    EXPECT_EQ(result.fractions.back(), 1.0);
    EXPECT_GT(result.fractions.front(), 0.0);
    for (std::size_t i = 1; i < result.fractions.size(); ++i) {
        EXPECT_GT(result.fractions[i], result.fractions[i - 1]);
    }
    EXPECT_GE(static_cast<double>(result.fractions.size()), seconds * 5);
    EXPECT_LE(static_cast<double>(result.fractions.size()), seconds * 60 + 2);
    EXPECT_EQ(result.messages.back(), "onloadend");
}

TEST(Upload, lastFractionComesForQuickBodies) {
    const ScriptedServer server([](Peer& peer) {
        peer.readHead();
        peer.read(1);
        peer.send(answer(200, ""));
    });
    const Exchanged result = exchange(*openRequest("POST", server.url()), streamOf("x").get());
    EXPECT_THAT(result.messages, ::testing::ElementsAre("onprogress", "onloadend"));
    EXPECT_THAT(result.fractions, ::testing::ElementsAre(1.0));
}

/// Answers before the body has ended; `then` says what becomes of the connection.
template <class Then>
Script early(const std::string& bytes, const Then& then) {
    return [bytes, then](Peer& peer) {
        peer.readHead();
        peer.discard(1U << 20U);
        peer.send(bytes);
        then(peer);
    };
}

TEST(Upload, earlyAnswersCount) {
    const auto close = [](Peer&) {};
    const auto linger = [](Peer& peer) { peer.waitForClose(); };
    const auto delayedReset = [](Peer& peer) {
        peer.sleep(50);
        peer.reset();
    };
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(upload(early(answer(401, "no"), linger)).status, 401);
        // Closing with bytes unread resets the connection, right behind the answer.
        EXPECT_EQ(upload(early(answer(413, "too large"), close)).body, "too large");
        EXPECT_EQ(upload(early(answer(413, "too large"), delayedReset)).body, "too large");
        EXPECT_EQ(upload(early(answer(200, "enough"), delayedReset)).body, "enough");
    }
}

TEST(Upload, brokenConnections) {
    EXPECT_THAT(upload(early("", [](Peer& peer) { peer.reset(); })).error, HasSubstr("was lost"));
    EXPECT_THAT(upload(early("HTTP/1.1 413 Too Large\r\nContent-Length: 9\r\n\r\nhal",
                             [](Peer& peer) {
                                 peer.sleep(50);
                                 peer.reset();
                             }))
                    .error,
                HasSubstr("127.0.0.1"));
    setIdleLimit(std::chrono::milliseconds(600));
    EXPECT_THAT(upload(early("", [](Peer& peer) { peer.sleep(20'000); })).error, HasSubstr("has stalled"));
    setIdleLimit(std::chrono::seconds(60));
}

/// A stream that answers a length that it does not keep, or fails at some place.
class BadStream final : public Object<IStream> {
public:
    BadStream(std::int64_t end, Result result) : m_end(end), m_result(result) {}

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override {
        const auto left = static_cast<std::uint64_t>(std::max<std::int64_t>(m_end - m_position, 0));
        *done = std::min(size, left);
        std::fill_n(static_cast<char*>(buffer), *done, 'b');
        m_position += static_cast<std::int64_t>(*done);
        return *done < size ? m_result : kOk;
    }
    Result write(const void*, std::uint64_t, std::uint64_t*) noexcept override { return kNotImplemented; }
    Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept override {
        if (m_end < 0) {
            return kUnexpected;
        }
        if (origin != SeekOrigin::kCurrent) {
            m_position = origin == SeekOrigin::kEnd ? static_cast<std::int64_t>(kSize) : offset;
        }
        if (position) {
            *position = m_position;
        }
        return kOk;
    }

private:
    std::int64_t m_end;
    Result m_result;
    std::int64_t m_position = 0;
};

TEST(Upload, bodyThatCannotBeRead) {
    const ScriptedServer server([](Peer& peer) { peer.waitForClose(); });
    for (const Result result : {kOk, kUnexpected}) {
        const auto body = make<BadStream>(3'000'000, result);
        const Exchanged broken = exchange(*openRequest("POST", server.url()), body.get());
        EXPECT_EQ(broken.status, 0);
        EXPECT_THAT(broken.error, HasSubstr("could not be read"));
    }
    const auto unmeasurable = make<BadStream>(-1, kOk);
    EXPECT_EQ(openRequest("POST", server.url())->send(unmeasurable.get(), nullptr), kInvalidArgument);
}

} // namespace

} // namespace xbr::host::test
