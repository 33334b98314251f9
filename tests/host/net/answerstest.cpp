// What a caller learns from each kind of answer, complete or not.

#include "host/net/hostnet.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <gmock/gmock.h>

#include <ostream>

namespace xbr::host::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

struct AnswerCase {
    const char* name;
    Script script;
    int status;
    std::string body;
    std::string error; ///< a part of the text; empty when there must be none
    Fault fault = Fault::kNone;
};

void PrintTo(const AnswerCase& one, std::ostream* out) {
    *out << one.name;
}

/// What the host program hears.
class Listener final : public ExchangeListener {
public:
    Listener() { setExchangeListener(this); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { setExchangeListener(nullptr); }

    void began(const Exchange&) override { ++beginnings; }
    void ended(const Exchange& exchange) override { ends.push_back(exchange); }

    int beginnings = 0;
    std::vector<Exchange> ends;
};

class Answers : public ::testing::TestWithParam<AnswerCase> {
protected:
    Answers() { setIdleLimit(std::chrono::milliseconds(600)); }
    ~Answers() override { setIdleLimit(std::chrono::seconds(60)); }

    Listener m_listener;
};

TEST_P(Answers, reachTheHandlerOnce) {
    const ScriptedServer server(GetParam().script);
    const Exchanged result = get(server.url("/account?secret=hidden"));
    EXPECT_THAT(result.messages, ElementsAre("onloadend"));
    EXPECT_EQ(result.status, GetParam().status);
    EXPECT_EQ(result.body, GetParam().body);
    EXPECT_THAT(result.error, GetParam().error.empty() ? ::testing::Matcher<std::string>(IsEmpty())
                                                       : HasSubstr(GetParam().error));
    EXPECT_THAT(result.error, Not(HasSubstr("hidden")));

    EXPECT_EQ(m_listener.beginnings, 1);
    ASSERT_EQ(m_listener.ends.size(), 1U);
    const Exchange& told = m_listener.ends.front();
    EXPECT_EQ(told.method + " " + told.host, "GET 127.0.0.1");
    EXPECT_EQ(told.status, GetParam().status);
    EXPECT_EQ(told.problem.fault, GetParam().fault);
    EXPECT_EQ(told.problem.words, result.error);
}

const std::string kStart = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf";
const std::string kMegabyte(std::size_t{1} << 20U, 'x');

void resetAfter(Peer& peer, const std::string& bytes) {
    peer.readHead();
    peer.send(bytes);
    peer.sleep(100);
    peer.reset();
}

void stallAfter(Peer& peer, const std::string& bytes) {
    peer.readHead();
    peer.send(bytes);
    peer.waitForClose();
}

/// Slower than the idle limit as a whole, but never silent for so long.
void dribble(Peer& peer) {
    peer.readHead();
    peer.send("HTTP/1.1 200 OK\r\nContent-Length: 8\r\n\r\n");
    for (int i = 0; i < 8; ++i) {
        peer.sleep(150);
        peer.send("d");
    }
}

/// Sends `piece` until the client has had enough.
Script flood(std::string head, std::string piece) {
    return [head = std::move(head), piece = std::move(piece)](Peer& peer) {
        peer.readHead();
        peer.send(head);
        while (peer.send(piece)) {
        }
    };
}

INSTANTIATE_TEST_SUITE_P(
    Complete, Answers,
    ::testing::Values(
        AnswerCase{"ok", answering(answer(200, "fine")), 200, "fine", ""},
        AnswerCase{"emptyBody", answering(answer(200, "")), 200, "", ""},
        AnswerCase{"noContent", answering("HTTP/1.1 204 No Content\r\n\r\n"), 204, "", ""},
        AnswerCase{"refused", answering(answer(401, "who?", "WWW-Authenticate: Bearer\r\n")), 401, "who?", "",
                   Fault::kRefused},
        AnswerCase{"chunked",
                   answering("HTTP/1.1 200 OK\r\nTransfer-Encoding: "
                             "chunked\r\n\r\n2\r\nab\r\n1\r\nc\r\n0\r\nX: y\r\n\r\n"),
                   200, "abc", ""},
        AnswerCase{"untilClose", answering("HTTP/1.0 200 OK\r\n\r\nto the end"), 200, "to the end", ""},
        AnswerCase{"interim",
                   answering("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n" +
                             answer(200, "fine")),
                   200, "fine", ""},
        AnswerCase{"redirectIsNotFollowed", answering(answer(302, "", "Location: /elsewhere\r\n")), 302, "",
                   "", Fault::kRefused},
        AnswerCase{"slowButAlive", dribble, 200, "dddddddd", ""}),
    [](const auto& one) { return one.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Incomplete, Answers,
    ::testing::Values(
        AnswerCase{"cutShort", answering(kStart), 0, "", "was cut short", Fault::kConnectionLost},
        AnswerCase{"cutShortInAChunk",
                   answering("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n9\r\nhalf"), 0, "",
                   "was cut short", Fault::kConnectionLost},
        AnswerCase{"cutShortInTheHeaders", answering("HTTP/1.1 200 OK\r\nContent-Le"), 0, "", "127.0.0.1",
                   Fault::kConnectionLost},
        AnswerCase{"onlyInterim", answering("HTTP/1.1 103 Early Hints\r\n\r\n"), 0, "", "127.0.0.1",
                   Fault::kConnectionLost},
        AnswerCase{"resetInTheBody", [](Peer& peer) { resetAfter(peer, kStart); }, 0, "", "was lost",
                   Fault::kConnectionLost},
        AnswerCase{"resetAtOnce", [](Peer& peer) { resetAfter(peer, ""); }, 0, "", "was lost",
                   Fault::kConnectionLost},
        AnswerCase{"closedWithoutAnswer", answering(""), 0, "", "without an answer", Fault::kConnectionLost},
        AnswerCase{"notHttp", answering("SSH-2.0-OpenSSH_9.2\r\n"), 0, "", "could not be understood",
                   Fault::kConnectionLost},
        AnswerCase{"switchesProtocols", answering("HTTP/1.1 101 Switching\r\nUpgrade: x\r\n\r\nxxxx"), 0, "",
                   "127.0.0.1", Fault::kConnectionLost},
        AnswerCase{"silent", [](Peer& peer) { stallAfter(peer, ""); }, 0, "", "has stalled", Fault::kStalled},
        AnswerCase{"silentInTheBody", [](Peer& peer) { stallAfter(peer, kStart); }, 0, "", "has stalled",
                   Fault::kStalled},
        AnswerCase{"announcedTooLarge",
                   flood("HTTP/1.1 200 OK\r\nContent-Length: 99999999\r\n\r\n", kMegabyte), 0, "",
                   "too large", Fault::kReplyTooLarge},
        AnswerCase{"endless", flood("HTTP/1.1 200 OK\r\n\r\n", kMegabyte), 0, "", "too large",
                   Fault::kReplyTooLarge},
        AnswerCase{"endlessHeaders", flood("HTTP/1.1 200 OK\r\n", "X: " + std::string(8000, 'x') + "\r\n"), 0,
                   "", "too large", Fault::kReplyTooLarge},
        AnswerCase{"endlessInterim",
                   flood("", "HTTP/1.1 103 Early\r\nX: " + std::string(8000, 'x') + "\r\n\r\n"), 0, "",
                   "too large", Fault::kReplyTooLarge}),
    [](const auto& one) { return one.param.name; });

TEST(Words, ofRefusalsAreToldInOneLine) {
    const std::string longWord(300, 'x');
    const struct {
        std::string body;
        std::string said;
    } cases[] = {
        {R"({"message":"This title already exists"})", "This title already exists"},
        {R"({"errors":["No title","No artist"],"message":"later"})", "No title; No artist"},
        {R"({"errors":{"title":["is taken"],"year":[{"text":"is missing"}]}})", "is taken; is missing"},
        {R"({"message":"two\nlines\u001b[2J\u0085"})", "two lines [2J "},
        {R"({"message":")" + longWord + "\"}", longWord.substr(0, 200)},
        {R"({"message":7})", ""},
        {R"(["message"])", ""},
        {R"({"message":"cut off)", ""},
        {"<html>message</html>", ""},
    };
    for (const auto& one : cases) {
        const ScriptedServer server(answering(answer(422, one.body)));
        const Listener listener;
        EXPECT_EQ(get(server.url()).body, one.body);
        ASSERT_EQ(listener.ends.size(), 1U);
        EXPECT_EQ(listener.ends.front().said, one.said) << one.body;
        EXPECT_EQ(listener.ends.front().problem.words, one.said);
        EXPECT_EQ(listener.ends.front().problem.code, 422);
    }
}

TEST(Unreachable, tellsWhy) {
    std::uint16_t closedPort = 0;
    { closedPort = ScriptedServer(answering("")).port(); }
    const Listener listener;
    const Exchanged refused = get("http://127.0.0.1:" + std::to_string(closedPort) + "/?code=hidden");
    EXPECT_EQ(refused.status, 0);
    EXPECT_EQ(refused.error, "No connection to 127.0.0.1 could be made.");
    EXPECT_THAT(refused.messages, ElementsAre("onloadend"));

    const Exchanged missing = get("http://missing.invalid/?code=hidden");
    EXPECT_EQ(missing.status, 0);
    EXPECT_EQ(missing.error, "The server missing.invalid could not be found.");
    for (const Exchange& told : listener.ends) {
        EXPECT_EQ(told.problem.fault, Fault::kNoServer);
    }
    EXPECT_EQ(listener.ends.size(), 2U);
}

} // namespace

} // namespace xbr::host::test
