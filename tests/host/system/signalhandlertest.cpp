#include "framework/abi/message.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "host/system/hostsystem.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <vector>

namespace xbr::host::tests {
namespace {

using Log = std::vector<std::string>;

class Subject final : public Object<ISubject> {
public:
    ~Subject() override { XBRGetSignalHandler()->forgetSubject(this); }
};

/// Notes what it receives as "name:message", then does what the test wants.
class Observer final : public Object<IObserver> {
public:
    Observer(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}
    ~Observer() override {
        XBRGetSignalHandler()->forgetObserver(this);
        m_log.push_back("~" + m_name);
    }

    void notify(ISubject* subject, IMessage* message) noexcept override {
        m_log.push_back(m_name + (subject ? ":" : "<") + toString(message->name()));
        if (then) {
            then();
        }
    }

    std::function<void()> then;

private:
    std::string m_name;
    Log& m_log;
};

class SignalHandlerTest : public testing::Test {
protected:
    ~SignalHandlerTest() override {
        a.reset();
        b.reset();
        c.reset();
        dropPostedMessages();
    }

    void observe(const Ref<Observer>& observer) { handler.addObserver(subject.get(), observer.get()); }
    void unobserve(const Ref<Observer>& observer) { handler.removeObserver(subject.get(), observer.get()); }
    void observeAll() {
        observe(a);
        observe(b);
        observe(c);
    }
    void signal(const std::string& name) { handler.signal(subject.get(), make<Message>(name).get()); }
    void postSignal(const std::string& name) { handler.postSignal(subject.get(), make<Message>(name).get()); }
    void post(const Ref<Observer>& to, const std::string& name, std::int32_t delay = 0) {
        handler.post(to.get(), make<Message>(name).get(), delay);
    }
    static void runLoop() {
        for (int turn = 0; turn < 8; ++turn) { // one for each message
            QCoreApplication::processEvents();
        }
    }
    Log taken() { return std::exchange(log, {}); }

    ISignalHandler& handler = *XBRGetSignalHandler();
    Log log;
    Ref<Subject> subject = make<Subject>();
    Ref<Observer> a = make<Observer>("a", log);
    Ref<Observer> b = make<Observer>("b", log);
    Ref<Observer> c = make<Observer>("c", log);
};

TEST_F(SignalHandlerTest, SignalsAtOnceInTheOrderOfAdding) {
    observe(b);
    observe(a);
    EXPECT_EQ(handler.addObserver(subject.get(), a.get()), kFalse);
    signal("x");
    EXPECT_EQ(taken(), (Log{"b:x", "a:x"}));
    EXPECT_EQ(handler.removeObserver(subject.get(), b.get()), kOk);
    EXPECT_EQ(handler.removeObserver(subject.get(), b.get()), kFalse);
    a->then = [&] { observe(b); };
    signal("y");
    EXPECT_EQ(taken(), Log{"a:y"}) << "who was added meanwhile waits for the next message";
    signal("z");
    EXPECT_EQ(taken(), (Log{"a:z", "b:z"}));
}

TEST_F(SignalHandlerTest, AnObserverRemovedDuringADeliveryGetsNothing) {
    const std::function<void()> removals[] = {[&] { unobserve(b); }, [&] { handler.forgetObserver(b.get()); },
                                              [&] {
                                                  unobserve(b);
                                                  observe(b);
                                              }};
    for (const auto& remove : removals) {
        handler.forgetSubject(subject.get());
        observeAll();
        a->then = remove;
        signal("x");
        EXPECT_EQ(taken(), (Log{"a:x", "c:x"})) << &remove - removals;
    }
}

TEST_F(SignalHandlerTest, NestedSignalsAndAnEndingSubject) {
    observeAll();
    a->then = [&] {
        a->then = nullptr;
        signal("inner");
    };
    signal("outer");
    EXPECT_EQ(taken(), (Log{"a:outer", "a:inner", "b:inner", "c:inner", "b:outer", "c:outer"}));

    a->then = [&] { subject.reset(); };
    signal("last");
    EXPECT_EQ(taken(), Log{"a:last"});
}

TEST_F(SignalHandlerTest, TheReceiverLivesUntilItsHandlerHasReturned) {
    observeAll();
    b->then = [&] {
        b.reset();
        log.push_back("still here");
    };
    signal("x");
    EXPECT_EQ(taken(), (Log{"a:x", "b:x", "still here", "~b", "c:x"}));

    c->then = [&] {
        c.reset();
        log.push_back("still here");
    };
    post(c, "y");
    runLoop();
    EXPECT_EQ(taken(), (Log{"c<y", "still here", "~c"}));
}

TEST_F(SignalHandlerTest, PostsComeOneByOneFromTheLoopInTheOrderOfTheCalls) {
    observe(a);
    post(b, "1");
    postSignal("2");
    post(b, "3", -1);
    post(a, "4");
    signal("now");
    EXPECT_EQ(taken(), Log{"a:now"});
    observe(c); // before the delivery: receives the posted signal, too
    QCoreApplication::processEvents();
    EXPECT_EQ(taken(), Log{"b<1"}) << "a long row does not hold up the loop";
    runLoop();
    EXPECT_EQ(taken(), (Log{"a:2", "c:2", "b<3", "a<4"}));
}

/// Many objects that hear of one another end, in whatever order, in time that grows with their number only.
TEST_F(SignalHandlerTest, LettingGoOfManyIsQuick) {
    std::vector<std::pair<Ref<Subject>, Ref<Observer>>> many;
    for (int i = 0; i < 10'000; ++i) {
        const auto& [from, to] = many.emplace_back(make<Subject>(), make<Observer>("o", log));
        observe(to);
        handler.addObserver(from.get(), a.get());
        handler.addObserver(from.get(), to.get());
        handler.postSignal(from.get(), make<Message>("x").get());
        post(to, "x", i % 2 == 0 ? 0 : 60'000);
    }
    const auto start = std::clock(); // not the time in which others run
    many.clear();
    EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC); // a look at all others for each took ten
    log.clear();
    runLoop();
    EXPECT_EQ(taken(), Log{});
}

TEST_F(SignalHandlerTest, ALoopInsideAHandlerDeliversWhatWasPostedBefore) {
    a->then = [&] {
        QEventLoop modal;
        c->then = [&] { modal.quit(); };
        post(c, "4");
        modal.exec();
        log.push_back("modal ended");
        c->then = nullptr;
    };
    post(a, "1");
    post(b, "2");
    post(b, "3");
    post(b, "5", 60'000); // far from its turn
    runLoop();
    EXPECT_EQ(taken(), (Log{"a<1", "b<2", "b<3", "c<4", "modal ended"}));
}

TEST_F(SignalHandlerTest, DelayedPostsWaitTheirTime) {
    QElapsedTimer clock;
    clock.start();
    post(a, "late", 60);
    post(a, "early", 20);
    post(a, "now");
    post(b, "dropped", 20);
    handler.forgetObserver(b.get());
    qint64 arrival = 0;
    a->then = [&] { arrival = clock.elapsed(); };
    while (log.size() < 3 && clock.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    EXPECT_EQ(taken(), (Log{"a<now", "a<early", "a<late"}));
    EXPECT_GE(arrival, 59) << "not early, but for the rounding of two clocks to milliseconds";
}

TEST_F(SignalHandlerTest, WhatIsPostedToTheForgottenIsDropped) {
    observe(c);
    post(a, "1");
    post(b, "2");
    postSignal("3");
    a.reset();
    subject.reset();
    EXPECT_EQ(taken(), Log{"~a"});
    runLoop();
    EXPECT_EQ(taken(), Log{"b<2"});
}

TEST_F(SignalHandlerTest, DroppingAMessageMayEndObjectsThatForgetThemselves) {
    // The message to a holds the last reference to b, to which another message is posted.
    IObserver& held = *b;
    post(b, "to b");
    handler.post(a.get(), make<Message>("holder", std::initializer_list<Value>{objectValue(&held)}).get(), 0);
    post(c, "to c");
    b.reset();
    EXPECT_EQ(taken(), Log{});
    handler.forgetObserver(a.get());
    EXPECT_EQ(taken(), Log{"~b"});
    runLoop();
    EXPECT_EQ(taken(), Log{"c<to c"});
}

TEST_F(SignalHandlerTest, QuietIsToldWhenTheLastDeliveryHasComeBack) {
    setQuietListener([&] { log.push_back("quiet"); });
    post(a, "x");
    a->then = [&] {
        a->then = nullptr;
        post(b, "from x");
        runLoop(); // as a dialog does
        EXPECT_TRUE(hasPostedMessages()) << "the handler has not returned";
        post(b, "last");
    };
    EXPECT_TRUE(hasPostedMessages());
    runLoop();
    EXPECT_EQ(taken(), (Log{"a<x", "b<from x", "b<last", "quiet"}));
    EXPECT_FALSE(hasPostedMessages());

    post(a, "dropped");
    dropPostedMessages();
    runLoop();
    EXPECT_EQ(taken(), Log{"quiet"});
    setQuietListener({});
}

} // namespace
} // namespace xbr::host::tests
