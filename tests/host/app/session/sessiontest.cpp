#include "framework/abi/hostclasses.h"
#include "framework/abi/webservice.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "host/app/session/hostsession.h"
#include "tests/fixtures/testfolder.h"
#include "tests/host/app/fakefront.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = Activity::Kind;

class ActivityTest : public testing::Test, protected Activity::Watcher {
protected:
    void began(Kind kind) override { m_log.push_back("begins " + std::to_string(static_cast<int>(kind))); }
    void ended(Kind, bool isCancelled) override { m_log.emplace_back(isCancelled ? "cancelled" : "ends"); }
    void exchangeBegan(const Exchange&) override { m_log.emplace_back("request"); }
    void exchangeEnded(const Exchange& exchange) override {
        m_log.emplace_back(exchange.problem.fault == Fault::kNoServer ? "no server" : "answer");
    }
    void becameQuiet() override { m_log.emplace_back("quiet"); }

    std::vector<std::string> log() { return std::exchange(m_log, {}); }

    Activity m_activity;
    Activity::Handle m_watching = m_activity.watch(*this);
    std::vector<std::string> m_log;
};

struct Receiver final : Object<IObserver> {
    explicit Receiver(std::function<void()> what) : act(std::move(what)) {}
    void notify(ISubject*, IMessage*) noexcept override { act(); }

    std::function<void()> act;
};

} // namespace

TEST_F(ActivityTest, restComesWhenTheLastThingHasEnded) {
    auto first = std::make_unique<Activity::Run>(m_activity, Kind::kPreparing, std::function<void()>());
    first->cancelled();
    first.reset();
    EXPECT_TRUE(m_activity.isQuiet()) << "for a moment, inside a call that goes on";
    {
        const Activity::Run next(m_activity, Kind::kDialog, {});
        runFor(20);
        EXPECT_THAT(log(), ElementsAre("begins 1", "cancelled", "begins 0"));
    }
    const auto receiver = make<Receiver>([this] {
        m_log.emplace_back("message");
        runFor(20); // as a dialog does
    });
    XBRGetSignalHandler()->post(receiver.get(), make<Message>("x").get(), 0);
    EXPECT_FALSE(m_activity.isQuiet());
    runFor(20);
    EXPECT_THAT(m_log, ElementsAre("ends", "message", "quiet"));
    log();

    m_activity.askForQuiet();
    EXPECT_THAT(log(), IsEmpty());
    runFor(20);
    EXPECT_THAT(log(), ElementsAre("quiet"));
    m_watching.reset();
    m_activity.askForQuiet();
    runFor(20);
    EXPECT_THAT(log(), IsEmpty());
}

TEST_F(ActivityTest, requestsAreWaitedFor) {
    Ref<IWebRequest> request;
    XBRGetWebService()->createRequest(request.out());
    ASSERT_EQ(request->open(toText("GET"), toText("http://127.0.0.1:1/"), nullptr), kOk);
    const auto next = make<Receiver>([this] { m_log.emplace_back("handler"); });
    ASSERT_EQ(request->send(nullptr, next.get()), kOk);
    EXPECT_FALSE(m_activity.isQuiet());
    EXPECT_TRUE(runUntil([this] { return m_activity.isQuiet(); }));
    runFor(20);
    EXPECT_THAT(log(), ElementsAre("request", "handler", "no server", "quiet"));
}

TEST_F(ActivityTest, theNewestEndsFirst) {
    std::vector<int> order;
    auto outer = std::make_unique<Activity::Run>(m_activity, Kind::kDialog, [&] { order.push_back(1); });
    const Activity::Run inner(m_activity, Kind::kDialog, [&] {
        order.push_back(2);
        outer.reset();
    });
    m_activity.endAll();
    EXPECT_EQ(order, (std::vector{2, 1}));
    EXPECT_TRUE(m_activity.isEnding());
}

TEST(Session, livesOnWithWhatCouldBeHad) {
    const TestFolder folder;
    const TestVariable runtime("XDG_RUNTIME_DIR", folder.path());
    const TestVariable modules("XBRHOST_MODULE_PATH", "/none.so:" TEST_MODULE ":" TEST_LIBRARY);
    std::filesystem::create_directory(folder.path("xbrhost")); // anybody may enter it
    const std::tuple<SessionOptions, std::vector<Fault>, std::size_t> cases[] = {
        {SessionOptions{{}, true, false}, {Fault::kModule, Fault::kModule}, 1},
        {SessionOptions{{}, false, true}, {Fault::kModule, Fault::kNotWritable}, 0},
        {SessionOptions{TEST_MODULE, true, true}, {Fault::kNotWritable}, 1},
    };
    for (const auto& [options, problems, count] : cases) {
        FakeFront front;
        HostSession session(front, options);
        std::vector<Fault> faults;
        for (const Problem& problem : session.start()) {
            faults.push_back(problem.fault);
        }
        EXPECT_EQ(faults, problems);
        EXPECT_EQ(session.modules().size(), count);
        EXPECT_TRUE(createHostObject<IMediaFileInfo>());
        EXPECT_FALSE(session.openPanel(GadgetClass{}, {}));
    }
    EXPECT_FALSE(createHostObject<IMediaFileInfo>());
}

} // namespace xbr::host
