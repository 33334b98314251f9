#include "sandbox/upload/inbox.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace sandbox {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNumberWidth = 4;

std::string folderName(std::int64_t number) {
    auto digits = std::to_string(number);
    return std::string(kNumberWidth - std::min(kNumberWidth, digits.size()), '0') + digits;
}

std::int64_t numberOf(const std::string& name) {
    std::int64_t number = 0;
    const auto* end = name.data() + name.size();
    const auto result = std::from_chars(name.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? number : 0;
}

std::int64_t highestNumber(const fs::path& folder) {
    std::int64_t highest = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        highest = std::max(highest, numberOf(entry.path().filename().string()));
    }
    return highest;
}

// Held as long as the process lives, however it ends.
int lockFolder(const fs::path& folder) {
    const auto file = folder / ".lock";
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0 || ::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const int reason = errno;
        if (descriptor >= 0) {
            ::close(descriptor);
        }
        throw std::system_error(reason, std::generic_category(), "inbox " + folder.string() + " is in use");
    }
    return descriptor;
}

} // namespace

Staging::Staging(const fs::path& parent) {
    auto pattern = (parent / "upload-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), "cannot create " + pattern);
    }
    m_folder = pattern;
}

Staging::~Staging() {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

Inbox::Inbox(fs::path folder) : m_folder(std::move(folder)) {
    fs::create_directories(m_folder);
    m_lock = lockFolder(m_folder);
    fs::remove_all(stagingFolder());
    fs::create_directory(stagingFolder());
    m_last = highestNumber(m_folder);
}

Inbox::~Inbox() {
    std::error_code ignored;
    fs::remove_all(stagingFolder(), ignored);
    ::close(m_lock);
}

std::int64_t Inbox::accept(const Staging& staging) {
    const std::lock_guard lock(m_mutex);
    fs::rename(staging.release(), m_folder / folderName(m_last + 1));
    ++m_accepted;
    return ++m_last;
}

std::int64_t Inbox::accepted() const {
    const std::lock_guard lock(m_mutex);
    return m_accepted;
}

} // namespace sandbox
