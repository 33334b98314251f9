#include "tests/module/modulefixture.h"

#include <gmock/gmock.h>

namespace brindlex {

namespace {

using fakehost::host;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

/// A whole day of the module's, from load to unload, as a host sees it: what it asks for may have failed, and
/// the parts that need it are left out then.
class WholeScenario {
public:
    /// Runs it on a new host that fails one call; true when every song has arrived, as a single and in an
    /// album.
    bool run(int failingCall) {
        fakehost::resetHost();
        host().failingCall = failingCall;
        host().files.files["resource://brindlex/gadget.xml"] = R"(<Gadget formName="BrindlexManager"/>)";
        addGenres();
        host().objects.configuration = {{"ServerURL", "https://service"},
                                        {"UserURL", "https://web/me"},
                                        {"ConsumerKey", "key"},
                                        {"ConsumerSecret", "confidential-1"},
                                        {"CallbackURL", "brindlex://back"},
                                        {"JoinToken", "confidential-2"}};
        m_arrivals = 0;
        if (XBRModuleMain(this, 1) == 1) {
            runService();
        }
        XBRModuleMain(this, 2);
        expectNothingLeft();
        return m_arrivals == 6;
    }

    int calls() const { return host().calls; }

private:
    void runService() {
        const auto context = xbr::make<xbr::host::TestHostContext>();
        const auto service =
            create<xbr::IProgramService>(*XBRGetClassFactory(), XBRGetClassFactory()->classAt(0)->uid);
        xbr::Ref<xbr::IClassFactory> classes;
        if (service->initialise(context.get()) == xbr::kOk &&
            service->getClasses(classes.out()) == xbr::kOk) {
            const auto publisher = create<xbr::IPublisher>(*classes, classes->classAt(0)->uid);
            const auto panel = create<xbr::IController>(*classes, classes->classAt(1)->uid);
            const auto description = create<xbr::IGadgetDescription>(*classes, classes->classAt(2)->uid);
            runPanel(*publisher);
        }
        service->terminate();
    }

    void runPanel(xbr::IPublisher& publisher) {
        Manager& manager = *Manager::current();
        signIn(manager);
        EXPECT_EQ(publisher.publish(songs({"a", "b", "c"}).get()), xbr::kOk);
        manager.trackList().prepareMode(UploadMode::kSingles);
        upload(manager);
        publisher.publish(songs({"a", "b", "c"}).get()); // several songs: an album
        fakehost::set(manager.trackList().editor(), "albumTitle", xbr::textValue("Album"));
        upload(manager);
        manager.client().resetAuthorization(Silence::kTold);
        EXPECT_FALSE(manager.client().isAuthorized());
        EXPECT_FALSE(manager.client().isBusy()) << "a state that nothing ends";
    }

    static void signIn(Manager& manager) {
        host().objects.onModalRun = [] {
            host().fileTypes.openUrl(xbr::toText("brindlex://back?code=confidential-3"));
            answer(200,
                   R"({"access_token":"confidential-4","refresh_token":"confidential-5","expires_in":3600})");
        };
        fakehost::press(manager, "connect");
        answer(200, R"({"user":{"name":"Mara"}})");
    }

    void upload(Manager& manager) {
        const auto before = host().web.sent.size();
        fakehost::press(manager, "upload");
        for (int i = 0; i < 9 && host().web.isInFlight(); ++i) { // an end that does not come is no success
            answer(200);
        }
        EXPECT_FALSE(host().web.isInFlight());
        for (const auto& track : tracksOf(manager.trackList().model())) {
            EXPECT_FALSE(track->uploading) << "a state that nothing ends";
            const bool hasArrived = isSent("=audio of " + track->metadata->songTitle + ";", before);
            EXPECT_EQ(track->state == TrackUploadState::kDone, hasArrived)
                << track->title << " after " << host().failed;
            m_arrivals += hasArrived ? 1 : 0;
        }
    }

    static bool isSent(const std::string& audio, std::size_t before) {
        const auto& sent = host().web.sent;
        return std::any_of(
            sent.begin() + static_cast<std::ptrdiff_t>(before), sent.end(),
            [&](const auto& request) { return request.body.find(audio) != std::string::npos; });
    }

    static void answer(std::int32_t status, const char* body = "") {
        if (host().web.isInFlight()) {
            host().web.answer(status, body);
        }
        host().signals.pump();
    }

    static void expectNothingLeft() {
        EXPECT_EQ(host().signals.remaining(), 0U);
        EXPECT_TRUE(host().fileTypes.handlers.empty());
        EXPECT_TRUE(host().objects.factories.empty());
        EXPECT_TRUE(host().files.resources.empty());
        EXPECT_THAT(host().system.warnings, Not(HasSubstr("confidential")));
        EXPECT_THAT(host().objects.log, Each(Not(HasSubstr("confidential"))));
        // What cannot be removed stays until the next upload, or until the host removes its temporary folder.
        const bool canRemove = host().failed != "getTemporaryFolder" && host().failed != "removeFolder";
        for (const auto& [url, bytes] : host().files.files) {
            EXPECT_FALSE(canRemove && url.starts_with("file:///tmp/")) << url << " after " << host().failed;
        }
    }

    int m_arrivals = 0;
};

TEST(EveryCall, FailsOnceAndTheNextRunSucceeds) {
    WholeScenario scenario;
    ASSERT_TRUE(scenario.run(0));
    const int calls = scenario.calls();
    EXPECT_GT(calls, 50);
    RecordProperty("calls", calls);
    for (int call = 1; call <= calls && !testing::Test::HasFailure(); ++call) {
        SCOPED_TRACE("the host fails call " + std::to_string(call));
        scenario.run(call);
        EXPECT_TRUE(scenario.run(0)) << "afterwards";
    }
}

} // namespace

} // namespace brindlex
