// What a caller learns from each kind of answer, complete or not, and from servers that are not there.

#include "host/net/hostnet.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <gmock/gmock.h>

namespace xbr::host::test {

namespace {

using ::testing::HasSubstr;

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

const std::string kStart = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf";
const std::string kLine = "X: " + std::string(8000, 'x') + "\r\n";

void resetSoon(Peer& peer) {
    peer.sleep(100);
    peer.reset();
}

/// Slower than the idle limit as a whole, but never silent for so long.
void dribble(Peer& peer) {
    for (int i = 0; i < 8; ++i) {
        peer.sleep(150);
        peer.send("d");
    }
}

/// Sends `head`, and then `piece` until the client has had enough.
Script flood(const std::string& head, const std::string& piece) {
    return answering(head, [piece](Peer& peer) {
        while (peer.send(piece)) {
        }
    });
}

TEST(Answers, reachTheHandlerOnce) {
    const std::string megabyte(std::size_t{1} << 20U, 'x');
    const struct {
        Script script;
        int status;
        const char* words; ///< the body, or a part of what went wrong
        Fault fault = Fault::kNone;
    } cases[] = {
        {answering(answer(200, "fine")), 200, "fine"},
        {answering("HTTP/1.1 204 No Content\r\n\r\n"), 204, ""},
        {answering(answer(401, "who?", "WWW-Authenticate: Bearer\r\n")), 401, "who?", Fault::kRefused},
        {answering("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n" + answer(200, "fine")), 200, "fine"},
        {answering(answer(302, "", "Location: /elsewhere\r\n")), 302, "", Fault::kRefused},
        {answering(answer(503, "later")), 503, "later", Fault::kServerFault},
        {answering("HTTP/1.1 200 OK\r\nContent-Length: 8\r\n\r\n", &dribble), 200, "dddddddd"},

        {answering(kStart), 0, "was cut short", Fault::kConnectionLost},
        {answering("HTTP/1.1 103 Early Hints\r\n\r\n"), 0, "127.0.0.1", Fault::kConnectionLost},
        {answering(kStart, &resetSoon), 0, "was lost", Fault::kConnectionLost},
        {answering(""), 0, "without an answer", Fault::kConnectionLost},
        {answering("SSH-2.0-OpenSSH_9.2\r\n"), 0, "not be understood", Fault::kConnectionLost},
        {answering("HTTP/1.1 101 Switching\r\nUpgrade: x\r\n\r\nx"), 0, "127.0.0.1", Fault::kConnectionLost},
        {answering("", &Peer::waitForClose), 0, "has stalled", Fault::kStalled},
        {answering(kStart, &Peer::waitForClose), 0, "has stalled", Fault::kStalled},
        {flood("HTTP/1.1 200 OK\r\n\r\n", megabyte), 0, "too large", Fault::kReplyTooLarge},
        {flood("HTTP/1.1 200 OK\r\n", kLine), 0, "too large", Fault::kReplyTooLarge},
        {flood("", "HTTP/1.1 103 Early\r\n" + kLine + "\r\n"), 0, "too large", Fault::kReplyTooLarge},
    };
    setIdleLimit(std::chrono::milliseconds(600));
    for (const auto& [script, status, words, fault] : cases) {
        const ScriptedServer server(script);
        const Listener listener;
        const Exchanged result = get(server.url("/account?secret=hidden"));
        EXPECT_EQ(result.status, status) << words;
        EXPECT_THAT(result.messages, ::testing::ElementsAre("onloadend")) << words;
        EXPECT_EQ(result.body, status == 0 ? "" : words);
        EXPECT_THAT(result.error, status == 0 ? ::testing::Matcher<std::string>(HasSubstr(words)) : "");
        EXPECT_THAT(result.error, ::testing::Not(HasSubstr("hidden")));

        EXPECT_EQ(listener.beginnings, 1) << words;
        ASSERT_EQ(listener.ends.size(), 1U) << words;
        const Exchange& told = listener.ends.front();
        EXPECT_EQ(told.method + " " + told.host, "GET 127.0.0.1") << words;
        EXPECT_EQ(told.status, status) << words;
        EXPECT_EQ(told.problem.fault, fault) << words;
        EXPECT_EQ(told.problem.words, result.error) << words;
    }
    setIdleLimit(std::chrono::seconds(60));
}

TEST(Answers, countBeforeTheBodyHasEndedUnlessTheyAreBroken) {
    const std::string body(std::size_t{32} << 20U, 'b');
    const auto linger = [](Peer& peer) { peer.waitForClose(); };
    const auto close = [](Peer&) {}; // with bytes unread resets the connection, right behind the answer
    const auto resetLater = [](Peer& peer) {
        peer.sleep(50);
        peer.reset();
    };
    const struct {
        std::string bytes; ///< sent before the body has ended
        Script then;
        int status;
        const char* words; ///< the body, or a part of what went wrong
    } cases[] = {
        {answer(401, "no"), linger, 401, "no"},
        {answer(413, "too large"), close, 413, "too large"},
        {answer(413, "too large"), resetLater, 413, "too large"},
        {answer(200, "enough"), resetLater, 200, "enough"},
        {"", &Peer::reset, 0, "was lost"},
        {"HTTP/1.1 413 Too Large\r\nContent-Length: 9\r\n\r\nhal", resetLater, 0, "127.0.0.1"},
        {"", linger, 0, "has stalled"},
    };
    for (const auto& [bytes, then, status, words] : cases) {
        for (int round = status == 0 ? 39 : 0; round < 40; ++round) { // whether they are lost is a race
            setIdleLimit(std::chrono::milliseconds(status == 0 ? 600 : 60'000));
            const ScriptedServer server([bytes = bytes, then = then](Peer& peer) {
                peer.readHead();
                peer.read(1U << 20U);
                peer.send(bytes);
                then(peer);
            });
            const Exchanged result = exchange(*openRequest("POST", server.url()), streamOf(body).get());
            EXPECT_EQ(result.status, status) << words;
            EXPECT_THAT(status == 0 ? result.error : result.body, HasSubstr(words));
        }
    }
    setIdleLimit(std::chrono::seconds(60));
}

TEST(Answers, thatRefuseAreToldInOneLine) {
    const std::string longWord(300, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {R"({"message":"This title already exists"})", "This title already exists"},
        {R"({"errors":["No title","No artist"],"message":"later"})", "No title; No artist"},
        {R"({"errors":{"title":["is taken"],"year":[{"text":"is missing"}]}})", "is taken; is missing"},
        {R"({"message":"two\nlines\u001b[2J\u0085"})", "two lines [2J "},
        {R"({"message":")" + longWord + "\"}", longWord.substr(0, 200)},
        {R"({"message":7})", ""},
        {R"(["message"])", ""},
        {"<html>message</html>", ""},
    };
    for (const auto& [body, said] : cases) {
        const ScriptedServer server(answering(answer(422, body)));
        const Listener listener;
        EXPECT_EQ(get(server.url()).body, body);
        ASSERT_EQ(listener.ends.size(), 1U);
        EXPECT_EQ(listener.ends.front().said, said) << body;
        EXPECT_EQ(listener.ends.front().problem.words, said);
        EXPECT_EQ(listener.ends.front().problem.code, 422);
    }
}

TEST(Answers, thatNobodyGivesAreExplained) {
    const std::pair<std::string, const char*> cases[] = {
        {ScriptedServer(answering("")).url("/?code=hidden"), "No connection to 127.0.0.1 could be made."},
        {"http://missing.invalid/?code=hidden", "The server missing.invalid could not be found."},
    };
    for (const auto& [url, error] : cases) {
        const Listener listener;
        const Exchanged result = get(url);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.error, error);
        EXPECT_THAT(result.messages, ::testing::ElementsAre("onloadend"));
        ASSERT_EQ(listener.ends.size(), 1U);
        EXPECT_EQ(listener.ends.front().problem.fault, Fault::kNoServer);
    }
}

} // namespace

} // namespace xbr::host::test
