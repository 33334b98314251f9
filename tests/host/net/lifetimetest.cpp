// Who may end a request when, and what is heard of it afterwards.

#include "host/net/hostnet.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <gmock/gmock.h>

namespace xbr::host::test {

namespace {

/// A body that does something of its own when it is read, and may be measured wrongly.
class BodyStream final : public Object<IStream> {
public:
    BodyStream(std::function<void()> onRead, Result result, std::int64_t excess)
        : m_onRead(std::move(onRead)),
          m_result(result),
          m_excess(excess) {}

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override {
        m_onRead();
        return m_result == kOk ? m_bytes->read(buffer, size, done) : m_result;
    }
    Result write(const void*, std::uint64_t, std::uint64_t*) noexcept override { return kNotImplemented; }
    Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept override {
        const Result result = m_bytes->seek(offset, origin, position);
        if (origin == SeekOrigin::kEnd) {
            *position += m_excess;
        }
        return result;
    }

private:
    std::function<void()> m_onRead;
    Result m_result;
    std::int64_t m_excess;
    Ref<MemoryStream> m_bytes = streamOf(std::string(5'000'000, 'b'));
};

class Lifetime : public ::testing::Test, private ExchangeListener {
protected:
    Lifetime() { setExchangeListener(this); }
    ~Lifetime() override {
        recorder->hook = nullptr;
        recorder.reset();
        setExchangeListener(nullptr);
        EXPECT_EQ(Recorder::alive(), 0) << "a handler was kept";
        EXPECT_EQ(m_open, 0) << "the host program takes requests for flying that are over";
    }

    /// Reads headers and a little of the body, then nothing.
    static void hang(Peer& peer) {
        peer.readHead();
        peer.read(100'000);
        peer.sleep(20'000);
    }

    static Ref<MemoryStream> body() { return streamOf(std::string(std::size_t{16} << 20U, 'b')); }

    /// A request that was just sent, with a recorder of its own.
    Ref<IWebRequest> send(const std::string& method, const std::string& url, const Ref<IStream>& content) {
        const auto request = openRequest(method, url);
        recorder->names.clear();
        EXPECT_EQ(request->send(content.get(), recorder.get()), kOk);
        EXPECT_EQ(recorder->names.size(), 0U) << "told from within send";
        return request;
    }

    Ref<Recorder> recorder = make<Recorder>();
    const ScriptedServer hanging{&Lifetime::hang};
    const ScriptedServer quick{answering(answer(200, "ok"))};

private:
    void began(const Exchange&) override { ++m_open; }
    void ended(const Exchange&) override { EXPECT_GE(--m_open, 0); }

    int m_open = 0;
};

TEST_F(Lifetime, oneShot) {
    const auto request = openRequest("GET", quick.url());
    EXPECT_EQ(request->abort(), kFalse);
    EXPECT_FALSE(request->isBusy());
    bool busyInHandler = true;
    recorder->hook = [&](const std::string&) { busyInHandler = request->isBusy(); };
    ASSERT_EQ(request->send(nullptr, recorder.get()), kOk);
    EXPECT_TRUE(request->isBusy());
    EXPECT_EQ(request->send(nullptr, recorder.get()), kUnexpected);
    EXPECT_EQ(request->open(toText("GET"), toText(quick.url()), nullptr), kUnexpected);
    ASSERT_TRUE(runUntil([&] { return recorder->heard("onloadend") > 0; }));
    EXPECT_FALSE(busyInHandler);
    EXPECT_EQ(recorder->sender, query<ISubject>(request.get()).get());
    EXPECT_EQ(request->send(nullptr, recorder.get()), kUnexpected);
    for (int i = 0; i < 2; ++i) {
        Ref<IStream> answered;
        ASSERT_EQ(request->getResponseBody(answered.out()), kOk);
        EXPECT_EQ(readAll(*answered), "ok") << "handed over at its start each time";
    }
}

TEST_F(Lifetime, abortAtAnyMoment) {
    using Reached = std::function<bool()>;
    const Reached atOnce = [] { return true; };
    const Reached later = [turns = 0]() mutable { return ++turns > 50; };
    const Reached inTheBody = [this] { return recorder->heard("onprogress") > 0; };
    for (const auto& [url, reached] : {std::pair{hanging.url(), atOnce},
                                       {"http://slow.invalid/", later},
                                       {hanging.url(), later},
                                       {hanging.url(), inTheBody}}) {
        const auto request = send("POST", url, body());
        EXPECT_TRUE(reached() || runUntil(reached));
        EXPECT_EQ(request->abort(), kOk);
        EXPECT_FALSE(request->isBusy());
        EXPECT_EQ(recorder->heard("onabort"), 0) << "told from within abort";
        EXPECT_EQ(request->abort(), kFalse);
        runFor(150);
        EXPECT_EQ(recorder->heard("onabort"), 1);
        EXPECT_EQ(recorder->names.back(), "onabort");
        EXPECT_EQ(request->status(), 0);
    }
}

TEST_F(Lifetime, handlersMayDoAnything) {
    enum Deed { kAbort, kRelease, kEndAll, kRunALoop }; // the last as a dialog does that the handler opens
    const ScriptedServer server([](Peer& peer) {
        peer.readHead();
        peer.read(std::size_t{16} << 20U);
        peer.send(answer(200, "ok"));
    });
    for (const std::string moment : {"onprogress", "onloadend", "onabort"}) {
        for (const Deed deed : {kAbort, kRelease, kEndAll, kRunALoop}) {
            SCOPED_TRACE(moment + std::to_string(deed));
            recorder = make<Recorder>();
            const auto flying = send("POST", hanging.url(), body());
            recorder = make<Recorder>();
            Ref<IWebRequest> request;
            std::vector<std::string> names;
            recorder->hook = [&](const std::string& name) {
                names.push_back(name);
                if (name != moment || std::count(names.begin(), names.end(), moment) > 1) {
                    return;
                }
                if (deed == kAbort) {
                    EXPECT_EQ(request->abort(), name == "onprogress" ? kOk : kFalse);
                } else if (deed == kRelease) {
                    request.reset();
                    recorder.reset();
                } else if (deed == kEndAll) {
                    abortAllRequests(); // the loop that has called us is gone for good, and a new one works
                }
                EXPECT_EQ(get(quick.url()).body, "ok");
            };
            request = send("POST", server.url(), body());
            if (moment == "onabort") {
                request->abort();
            }
            const bool isOver = deed == kRelease || deed == kEndAll;
            const bool isEnding = moment == "onprogress" && !isOver;
            const std::string last = !isEnding ? moment : deed == kAbort ? "onabort" : "onloadend";
            EXPECT_TRUE(runUntil([&] { return !names.empty() && names.back() == last; }));
            runFor(50);
            EXPECT_EQ(names.back(), last);
            EXPECT_FALSE(request && request->isBusy());
            EXPECT_EQ(flying->isBusy(), deed != kEndAll);
            EXPECT_EQ(Recorder::alive(), (deed == kRelease ? 0 : 1) + (deed == kEndAll ? 0 : 1));
        }
    }
    recorder = make<Recorder>();
}

TEST_F(Lifetime, bodyMayEndTheRequestThatReadsItOrBeUnreadable) {
    Ref<IWebRequest> request;
    const auto runLoop = [&] {
        runFor(100);
        request->abort();
    };
    const struct {
        std::function<void()> onRead;
        int aborts;
        int ends;
        Result result = kOk;
        std::int64_t excess = 0;
    } cases[] = {
        {[&] { request->abort(); }, 1, 0}, {[&] { request.reset(); }, 0, 0},
        {&abortAllRequests, 0, 0},         {runLoop, 1, 0},
        {[] {}, 0, 1, kUnexpected},        {[] {}, 0, 1, kOk, 1000},
    };
    const ScriptedServer reading(&Peer::waitForClose);
    for (const auto& [onRead, aborts, ends, result, excess] : cases) {
        request = send("POST", reading.url(), make<BodyStream>(onRead, result, excess));
        runUntil([&] { return recorder->heard("onloadend") > 0; }, ends > 0 ? 10'000 : 300);
        EXPECT_FALSE(request && request->isBusy());
        EXPECT_EQ(recorder->heard("onabort"), aborts);
        EXPECT_EQ(recorder->heard("onloadend"), ends);
        if (ends > 0) {
            Ref<IString> error;
            request->getErrorText(error.out());
            EXPECT_EQ(take(error), "The data to send to 127.0.0.1 could not be read.");
        }
    }
}

TEST_F(Lifetime, releasedInFlight) {
    std::atomic<bool> closed = false;
    const ScriptedServer server(answering("", [&closed](Peer& peer) {
        peer.waitForClose();
        closed = true;
    }));
    auto request = send("POST", server.url(), body());
    const auto* heard = std::exchange(recorder, {}).get();
    runUntil([&] { return heard->heard("onprogress") > 0; });
    EXPECT_EQ(Recorder::alive(), 1) << "the request keeps its handler";
    request.reset();
    EXPECT_EQ(Recorder::alive(), 0);
    EXPECT_TRUE(runUntil([&] { return closed.load(); }));
    recorder = make<Recorder>();
}

TEST_F(Lifetime, endOfAllRequests) {
    const auto aborted = send("POST", hanging.url(), body());
    const auto lookingUp = send("GET", "http://slow.invalid/", body());
    runFor(100);
    aborted->abort();
    recorder->names.clear();
    abortAllRequests();
    EXPECT_FALSE(lookingUp->isBusy());
    runFor(100);
    EXPECT_TRUE(recorder->names.empty());
}

} // namespace

} // namespace xbr::host::test
