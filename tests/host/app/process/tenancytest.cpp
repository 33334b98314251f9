#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "host/app/process/temporarytenancy.h"
#include "host/base/fileurl.h"
#include "host/system/hostsystem.h"
#include "tests/fixtures/testfolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <unistd.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

std::string askedFolder() {
    Ref<IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    return localPath(take(url)).value_or("");
}

} // namespace

TEST(Tenancy, onlyFoldersOfDeadHostsGo) {
    removeTemporaryFolder(); // of earlier tests
    const TestFolder folder;
    const TestVariable place("TMPDIR", folder.path());
    const auto make = [&](const char* name, fs::perms mode, bool isMarked) {
        const fs::path path = folder.path(name);
        fs::create_directories(path / "Brindlex/payload");
        if (isMarked) {
            std::ofstream(path / "xbrhost.lock");
        }
        fs::permissions(path, mode);
        return path;
    };
    const auto dead = make("xbr-aaaaaa", fs::perms::owner_all, true);
    const auto alive = make("xbr-bbbbbb", fs::perms::owner_all, true);
    const auto unmarked = make("xbr-cccccc", fs::perms::owner_all, false);
    const auto open = make("xbr-dddddd", fs::perms::all, true);
    const auto other = make("abc-aaaaaa", fs::perms::owner_all, true);
    fs::create_directory_symlink(other, folder.path("xbr-eeeeee"));
    const int mark = ::open((alive / "xbrhost.lock").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(mark, LOCK_EX), 0);

    std::string own;
    {
        const TemporaryTenancy tenancy;
        own = askedFolder();
        EXPECT_TRUE(own.starts_with(folder.path("xbr-"))) << own;
        EXPECT_FALSE(fs::exists(dead));
        for (const auto& kept : {alive, unmarked, open, other, fs::path(own)}) {
            EXPECT_TRUE(fs::exists(kept)) << kept;
        }
        close(mark);
    }
    EXPECT_FALSE(fs::exists(own));
    const TemporaryTenancy next;
    EXPECT_FALSE(fs::exists(alive)) << "its host is dead now";
}

} // namespace xbr::host
