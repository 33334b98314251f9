#include "framework/abi/hostclasses.h"
#include "framework/support/objects/object.h"
#include "host/app/session/hostsession.h"
#include "tests/fixtures/testfolder.h"
#include "tests/host/app/fakefront.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace xbr::host {

namespace {

std::string testModule(const std::string& kind) {
    return std::string(TEST_MODULES) + "/testmodule_" + kind + ".so";
}

} // namespace

TEST(Session, livesOnWithWhatCouldBeHad) {
    const TestFolder folder;
    const TestVariable runtime("XDG_RUNTIME_DIR", folder.path());
    const TestVariable modules("XBRHOST_MODULE_PATH",
                               testModule("refusing") + ":" + testModule("good") + ":" + testModule("empty"));
    std::filesystem::create_directory(folder.path("xbrhost")); // anybody may enter it
    const struct {
        SessionOptions options;
        std::vector<Fault> problems;
        std::size_t modules;
    } cases[] = {
        {{{}, true, false}, {Fault::kModule, Fault::kModule}, 1},
        {{{}, false, true}, {Fault::kModule, Fault::kNotWritable}, 0},
        {{testModule("good"), true, true}, {Fault::kNotWritable}, 1},
    };
    for (const auto& one : cases) {
        FakeFront front;
        HostSession session(front, one.options);
        std::vector<Fault> faults;
        for (const Problem& problem : session.start()) {
            faults.push_back(problem.fault);
        }
        EXPECT_EQ(faults, one.problems);
        EXPECT_EQ(session.modules().size(), one.modules);
        EXPECT_TRUE(createHostObject<IMediaFileInfo>());
        EXPECT_FALSE(session.openPanel(GadgetClass{}, {}));
    }
    EXPECT_FALSE(createHostObject<IMediaFileInfo>());
}

} // namespace xbr::host
