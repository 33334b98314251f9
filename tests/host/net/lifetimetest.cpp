// Who may end a request when, and what is heard of it afterwards.

#include "framework/support/objects/text.h"
#include "host/net/hostnet.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <QElapsedTimer>
#include <QTimer>
#include <gmock/gmock.h>

namespace xbr::host::test {

namespace {

using ::testing::ElementsAre;

class Lifetime : public ::testing::Test, private ExchangeListener {
protected:
    Lifetime() { setExchangeListener(this); }
    ~Lifetime() override {
        setExchangeListener(nullptr);
        EXPECT_EQ(Recorder::alive(), 0) << "a handler was kept";
        EXPECT_EQ(m_open, 0) << "the host program takes requests for flying that are over";
    }

    /// Reads headers and a little of the body, then nothing.
    static void hang(Peer& peer) {
        peer.readHead();
        peer.discard(100'000);
        peer.sleep(20'000);
    }

    static Ref<MemoryStream> body() { return streamOf(std::string(std::size_t{16} << 20U, 'b')); }

private:
    void began(const Exchange&) override { ++m_open; }
    void ended(const Exchange&) override { EXPECT_GE(--m_open, 0); }

    int m_open = 0;
};

TEST_F(Lifetime, oneShot) {
    const ScriptedServer server(answering(answer(200, "ok")));
    const auto request = openRequest("GET", server.url());
    EXPECT_EQ(request->abort(), kFalse);
    EXPECT_FALSE(request->isBusy());
    const auto recorder = make<Recorder>();
    bool busyInHandler = true;
    recorder->hook = [&](const std::string&) { busyInHandler = request->isBusy(); };
    ASSERT_EQ(request->send(nullptr, recorder.get()), kOk);
    EXPECT_TRUE(request->isBusy());
    EXPECT_TRUE(recorder->names.empty()) << "told from within send";
    EXPECT_EQ(request->send(nullptr, recorder.get()), kUnexpected);
    EXPECT_EQ(request->open(toText("GET"), toText(server.url()), nullptr), kUnexpected);
    ASSERT_TRUE(spinUntil([&] { return recorder->isCompleted(); }));
    EXPECT_FALSE(busyInHandler);
    EXPECT_EQ(recorder->sender, query<ISubject>(request.get()).get());
    EXPECT_EQ(query<IWebRequest>(recorder->sender).get(), request.get());
    EXPECT_EQ(request->send(nullptr, recorder.get()), kUnexpected);
    EXPECT_EQ(request->abort(), kFalse);
    Ref<IStream> first;
    Ref<IStream> second;
    ASSERT_EQ(request->getResponseBody(first.out()), kOk);
    EXPECT_EQ(readAll(*first), "ok");
    ASSERT_EQ(request->getResponseBody(second.out()), kOk);
    EXPECT_EQ(readAll(*second), "ok") << "handed over at its start each time";
    recorder->hook = nullptr;
}

TEST_F(Lifetime, abortAtAnyMoment) {
    const ScriptedServer server(&Lifetime::hang);
    struct Moment {
        const char* name;
        std::string url;
        std::function<bool(const Recorder&)> reached;
    };
    const auto atOnce = [](const Recorder&) { return true; };
    const auto later = [turns = 0](const Recorder&) mutable { return ++turns > 50; };
    const auto inTheBody = [](const Recorder& recorder) { return recorder.heard("onprogress") > 0; };
    for (const Moment& moment :
         {Moment{"at once", server.url(), atOnce}, Moment{"looking up", "http://slow.invalid/", later},
          Moment{"waiting", server.url(), later}, Moment{"sending", server.url(), inTheBody}}) {
        SCOPED_TRACE(moment.name);
        const auto request = openRequest("POST", moment.url);
        const auto recorder = make<Recorder>();
        ASSERT_EQ(request->send(body().get(), recorder.get()), kOk);
        if (moment.reached(*recorder) || spinUntil([&] { return moment.reached(*recorder); })) {
            QElapsedTimer clock;
            clock.start();
            EXPECT_EQ(request->abort(), kOk);
            EXPECT_LT(clock.elapsed(), 500) << "the window froze";
        }
        EXPECT_FALSE(request->isBusy());
        EXPECT_EQ(recorder->heard("onabort"), 0) << "told from within abort";
        EXPECT_EQ(request->abort(), kFalse);
        spinFor(150);
        EXPECT_EQ(recorder->heard("onabort"), 1);
        EXPECT_EQ(recorder->names.back(), "onabort");
        EXPECT_EQ(request->status(), 0);
    }
}

TEST_F(Lifetime, abortFromTheHandler) {
    const ScriptedServer slow(&Lifetime::hang);
    const ScriptedServer quick([](Peer& peer) {
        peer.readHead();
        peer.read(1);
        peer.send(answer(200, ""));
    });
    for (const auto& [url, bytes] : {std::pair{slow.url(), body()}, std::pair{quick.url(), streamOf("x")}}) {
        const auto request = openRequest("POST", url);
        const auto recorder = make<Recorder>();
        recorder->hook = [&](const std::string& name) {
            if (name == "onprogress") {
                EXPECT_EQ(request->abort(), kOk);
            }
        };
        ASSERT_EQ(request->send(bytes.get(), recorder.get()), kOk);
        spinFor(300);
        EXPECT_THAT(recorder->names, ElementsAre("onprogress", "onabort"));
        recorder->hook = nullptr;
    }
}

TEST_F(Lifetime, handlerMayDestroyEverything) {
    const ScriptedServer server([](Peer& peer) {
        peer.readHead();
        peer.discard(std::size_t{16} << 20U);
        peer.send(answer(200, "ok"));
    });
    for (const char* moment : {"onprogress", "onloadend", "onabort"}) {
        SCOPED_TRACE(moment);
        auto request = openRequest("POST", server.url());
        auto recorder = make<Recorder>();
        bool reached = false;
        recorder->hook = [&](const std::string& name) {
            if (name == moment) {
                reached = true;
                request.reset();
                recorder.reset();
            }
        };
        ASSERT_EQ(request->send(body().get(), recorder.get()), kOk);
        if (std::string_view(moment) == "onabort") {
            request->abort();
        }
        EXPECT_TRUE(spinUntil([&] { return reached; }));
        spinFor(50);
        EXPECT_EQ(Recorder::alive(), 0);
    }
}

/// A body that does something of its own when it is read.
class CallingStream final : public Object<IStream> {
public:
    explicit CallingStream(std::function<void()> onRead) : m_onRead(std::move(onRead)) {}

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override {
        m_onRead();
        return m_bytes->read(buffer, size, done);
    }
    Result write(const void*, std::uint64_t, std::uint64_t*) noexcept override { return kNotImplemented; }
    Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept override {
        return m_bytes->seek(offset, origin, position);
    }

private:
    std::function<void()> m_onRead;
    Ref<MemoryStream> m_bytes = streamOf(std::string(5'000'000, 'b'));
};

TEST_F(Lifetime, bodyMayEndTheRequestThatReadsIt) {
    const ScriptedServer server(&Lifetime::hang);
    Ref<IWebRequest> request;
    const auto abort = [&] { request->abort(); };
    const auto release = [&] { request.reset(); };
    struct Case {
        std::function<void()> onRead;
        int aborts;
    };
    const auto runLoop = [&] {
        spinFor(100);
        request->abort();
    };
    for (const Case& one : {Case{abort, 1}, Case{release, 0}, Case{&abortAllRequests, 0}, Case{runLoop, 1}}) {
        const auto recorder = make<Recorder>();
        request = openRequest("POST", server.url());
        ASSERT_EQ(request->send(make<CallingStream>(one.onRead).get(), recorder.get()), kOk);
        spinFor(300);
        EXPECT_FALSE(request && request->isBusy());
        EXPECT_EQ(recorder->heard("onabort"), one.aborts);
        EXPECT_EQ(recorder->heard("onloadend"), 0);
    }
}

TEST_F(Lifetime, releasedInFlight) {
    std::atomic<bool> closed = false;
    const ScriptedServer server([&closed](Peer& peer) {
        peer.readHead();
        peer.waitForClose();
        closed = true;
    });
    for (const bool aborted : {false, true}) {
        auto request = openRequest("POST", server.url());
        auto recorder = make<Recorder>();
        const auto* heard = recorder.get();
        ASSERT_EQ(request->send(body().get(), recorder.get()), kOk);
        recorder.reset();
        spinUntil([&] { return heard->heard("onprogress") > 0; });
        EXPECT_EQ(Recorder::alive(), 1) << "the request keeps its handler";
        if (aborted) {
            request->abort();
        }
        request.reset();
        EXPECT_EQ(Recorder::alive(), 0);
        EXPECT_TRUE(spinUntil([&] { return closed.load(); }));
        closed = false;
    }
}

TEST_F(Lifetime, handlerRunsALoopOfItsOwn) {
    // As a dialog does that the handler opens.
    const ScriptedServer server(answering(answer(200, "ok")));
    const auto request = openRequest("GET", server.url());
    const auto recorder = make<Recorder>();
    std::string inner;
    recorder->hook = [&](const std::string&) { inner = get(server.url()).body; };
    ASSERT_EQ(request->send(nullptr, recorder.get()), kOk);
    EXPECT_TRUE(spinUntil([&] { return !inner.empty(); }));
    EXPECT_EQ(inner, "ok");
    recorder->hook = nullptr;
}

TEST_F(Lifetime, endOfAllRequests) {
    const ScriptedServer server(&Lifetime::hang);
    const auto flying = openRequest("POST", server.url());
    const auto aborted = openRequest("POST", server.url());
    const auto lookingUp = openRequest("GET", "http://slow.invalid/");
    const auto recorder = make<Recorder>();
    for (const auto& request : {flying, aborted, lookingUp}) {
        ASSERT_EQ(request->send(body().get(), recorder.get()), kOk);
    }
    spinFor(100);
    aborted->abort();
    recorder->names.clear();
    abortAllRequests();
    EXPECT_FALSE(flying->isBusy());
    spinFor(100);
    EXPECT_TRUE(recorder->names.empty());

    const ScriptedServer next(answering(answer(200, "again")));
    EXPECT_EQ(get(next.url()).body, "again");
}

TEST_F(Lifetime, endOfAllRequestsFromAHandler) {
    const ScriptedServer server(&Lifetime::hang);
    const ScriptedServer quick(answering(answer(200, "ok")));
    for (const char* moment : {"onprogress", "onloadend"}) {
        SCOPED_TRACE(moment);
        const auto flying = openRequest("POST", server.url());
        const auto recorder = make<Recorder>();
        ASSERT_EQ(flying->send(body().get(), recorder.get()), kOk);
        const auto other = openRequest("GET", quick.url());
        const auto otherRecorder = make<Recorder>();
        int calls = 0;
        const auto endAll = [&](const std::string& name) {
            if (name == moment) {
                ++calls;
                abortAllRequests();
                // The loop that has called us is gone for good, and a new one works.
                EXPECT_EQ(get(quick.url()).body, "ok");
            }
        };
        recorder->hook = endAll;
        otherRecorder->hook = endAll;
        ASSERT_EQ(other->send(nullptr, otherRecorder.get()), kOk);
        spinFor(400);
        EXPECT_EQ(calls, 1);
        EXPECT_FALSE(flying->isBusy());
        recorder->hook = nullptr;
        otherRecorder->hook = nullptr;
    }
}

} // namespace

} // namespace xbr::host::test
