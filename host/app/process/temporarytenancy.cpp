#include "host/app/process/temporarytenancy.h"

#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/system/hostsystem.h"

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

std::string ownFolder() {
    Ref<IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    return localPath(take(url)).value_or("");
}

std::string markOf(const std::string& folder) {
    return folder + '/' + std::string(kFolderMark);
}

/// The mark appears under its name locked: nobody may see it free while its owner lives.
int makeMark(const std::string& folder) {
    const std::string path = markOf(folder);
    const std::string hidden = path + ".new";
    const int mark = open(hidden.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (mark >= 0 && (flock(mark, LOCK_EX | LOCK_NB) != 0 || rename(hidden.c_str(), path.c_str()) != 0)) {
        close(mark);
        return -1;
    }
    return mark;
}

/// True for a real folder of this user that nobody else may enter, as hosts make them.
bool isOwnFolder(const fs::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

/// Removes the folder if its mark is there, and free.
void removeIfDead(const fs::path& folder) {
    const int mark = open(markOf(folder).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (mark < 0) {
        return;
    }
    if (flock(mark, LOCK_EX | LOCK_NB) == 0) {
        removeMarkedFolder(folder); // what stays is found again by the next host
    }
    close(mark);
}

} // namespace

TemporaryTenancy::TemporaryTenancy() {
    const std::string own = ownFolder();
    if (own.empty()) {
        return;
    }
    m_mark = makeMark(own);
    const fs::path folder(own);
    const std::string name = folder.filename().string();
    const std::string prefix = name.substr(0, name.find('-') + 1); // what follows is random
    std::error_code ignored;
    for (fs::directory_iterator entry(folder.parent_path(), ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        const fs::path& path = entry->path();
        if (path != folder && path.filename().string().starts_with(prefix) && isOwnFolder(path)) {
            removeIfDead(path);
        }
    }
}

TemporaryTenancy::~TemporaryTenancy() {
    removeTemporaryFolder();
    if (m_mark >= 0) {
        close(m_mark);
    }
}

} // namespace xbr::host
