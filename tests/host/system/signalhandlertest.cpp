#include "framework/abi/message.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "host/system/hostsystem.h"
#include "tests/fixtures/testfolder.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

class Subject final : public Object<ISubject> {
public:
    ~Subject() override { XBRGetSignalHandler()->forgetSubject(this); }
};

/// Notes what it receives as "name:message ", then does once what the test wants.
class Observer final : public Object<IObserver> {
public:
    Observer(std::string name, std::string& log) : m_name(std::move(name)), m_log(log) {}
    ~Observer() override {
        XBRGetSignalHandler()->forgetObserver(this);
        m_log += "~" + m_name + " ";
    }

    void notify(ISubject* subject, IMessage* message) noexcept override {
        m_log += m_name + (subject ? ":" : "<") + toString(message->name()) + " ";
        if (const auto now = std::exchange(then, nullptr)) {
            now();
        }
    }

    std::function<void()> then;

private:
    std::string m_name;
    std::string& m_log;
};

class SignalHandlerTest : public testing::Test {
protected:
    ~SignalHandlerTest() override {
        a.reset();
        b.reset();
        c.reset();
        dropPostedMessages();
    }

    Result observe(const Ref<Observer>& by) { return handler.addObserver(subject.get(), by.get()); }
    Result unobserve(const Ref<Observer>& by) { return handler.removeObserver(subject.get(), by.get()); }
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

    /// What was noted of a signal, of the event loop, and so far.
    std::string noted(const std::string& signalled) {
        signal(signalled);
        return noted();
    }
    std::string notedInLoop() {
        runLoop();
        return noted();
    }
    std::string noted() { return std::exchange(log, {}); }

    ISignalHandler& handler = *XBRGetSignalHandler();
    std::string log;
    Ref<Subject> subject = make<Subject>();
    Ref<Observer> a = make<Observer>("a", log);
    Ref<Observer> b = make<Observer>("b", log);
    Ref<Observer> c = make<Observer>("c", log);
};

TEST_F(SignalHandlerTest, SignalsAtOnceInTheOrderOfAdding) {
    observe(b);
    EXPECT_EQ(observe(a), kOk);
    EXPECT_EQ(observe(a), kFalse);
    EXPECT_EQ(noted("x"), "b:x a:x ");
    EXPECT_EQ(unobserve(b), kOk);
    EXPECT_EQ(unobserve(b), kFalse);
    a->then = [&] { observe(b); };
    EXPECT_EQ(noted("y"), "a:y ") << "who was added meanwhile waits for the next message";
    EXPECT_EQ(noted("z"), "a:z b:z ");
}

TEST_F(SignalHandlerTest, WhoGoesDuringADeliveryGetsNothing) {
    const std::function<void()> removals[] = {[&] { unobserve(b); }, [&] { handler.forgetObserver(b.get()); },
                                              [&] {
                                                  unobserve(b);
                                                  observe(b);
                                              }};
    for (const auto& remove : removals) {
        handler.forgetSubject(subject.get());
        observeAll();
        a->then = remove;
        EXPECT_EQ(noted("x"), "a:x c:x ") << &remove - removals;
    }
    a->then = [&] { subject.reset(); };
    EXPECT_EQ(noted("last"), "a:last ");
}

TEST_F(SignalHandlerTest, SignalsAreNestedAndTheReceiverLivesUntilItsHandlerHasReturned) {
    observeAll();
    a->then = [&] { signal("inner"); };
    EXPECT_EQ(noted("outer"), "a:outer a:inner b:inner c:inner b:outer c:outer ");
    b->then = [&] {
        b.reset();
        log += "still here ";
    };
    EXPECT_EQ(noted("x"), "a:x b:x still here ~b c:x ");
    c->then = [&] {
        c.reset();
        log += "still here ";
    };
    post(c, "y");
    EXPECT_EQ(notedInLoop(), "c<y still here ~c ");
}

TEST_F(SignalHandlerTest, PostsComeOneByOneFromTheLoopInTheOrderOfTheCalls) {
    observe(a);
    post(b, "1");
    postSignal("2");
    post(b, "3", -1);
    post(a, "4");
    EXPECT_EQ(noted("now"), "a:now ");
    observe(c); // before the delivery: receives the posted signal, too
    QCoreApplication::processEvents();
    EXPECT_EQ(noted(), "b<1 ") << "a long row does not hold up the loop";
    EXPECT_EQ(notedInLoop(), "a:2 c:2 b<3 a<4 ");
}

TEST_F(SignalHandlerTest, ALoopInsideAHandlerDeliversWhatWasPostedBefore) {
    a->then = [&] {
        QEventLoop modal;
        c->then = [&] { modal.quit(); };
        post(c, "4");
        modal.exec();
        log += "modal ended ";
    };
    post(a, "1");
    post(b, "2");
    post(b, "3");
    post(b, "5", 60'000); // far from its turn
    EXPECT_EQ(notedInLoop(), "a<1 b<2 b<3 c<4 modal ended ");
}

TEST_F(SignalHandlerTest, DelayedPostsWaitTheirTime) {
    post(a, "late", 60);
    post(b, "early", 20);
    post(b, "now");
    post(c, "dropped", 20);
    handler.forgetObserver(c.get());
    EXPECT_TRUE(runUntil([&] { return log.find("late") != std::string::npos; }));
    EXPECT_EQ(noted(), "b<now b<early a<late ");
}

TEST_F(SignalHandlerTest, WhatIsPostedToTheForgottenIsDropped) {
    observe(c);
    post(a, "1");
    postSignal("3");
    a.reset();
    subject.reset();
    // The message to c holds the last reference to b, to which another message is posted.
    IObserver& held = *b;
    post(b, "to b");
    handler.post(c.get(), make<Message>("holder", std::initializer_list<Value>{objectValue(&held)}).get(), 0);
    b.reset();
    EXPECT_EQ(noted(), "~a ");
    handler.forgetObserver(c.get());
    EXPECT_EQ(noted(), "~b ");
    post(c, "to c");
    EXPECT_EQ(notedInLoop(), "c<to c ");
}

TEST_F(SignalHandlerTest, QuietIsToldWhenTheLastDeliveryHasComeBack) {
    setQuietListener([&] { log += "quiet "; });
    post(a, "x");
    a->then = [&] {
        post(b, "from x");
        runLoop(); // as a dialog does
        EXPECT_TRUE(hasPostedMessages()) << "the handler has not returned";
        post(b, "last");
    };
    EXPECT_TRUE(hasPostedMessages());
    EXPECT_EQ(notedInLoop(), "a<x b<from x b<last quiet ");
    EXPECT_FALSE(hasPostedMessages());
    post(a, "dropped");
    dropPostedMessages();
    EXPECT_EQ(notedInLoop(), "quiet ");
    setQuietListener({});
}

} // namespace
} // namespace xbr::host::tests
