#pragma once

#include <cstdint>
#include <filesystem>
#include <mutex>

namespace sandbox {

// A folder for one upload on its way in; gone with the object unless the inbox took the release over.
class Staging {
public:
    explicit Staging(const std::filesystem::path& parent);
    ~Staging();
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    // The request's body as it arrives.
    std::filesystem::path body() const { return m_folder / "body"; }
    // What becomes the folder of the inbox.
    std::filesystem::path release() const { return m_folder / "release"; }

private:
    std::filesystem::path m_folder;
};

// Where accepted releases are kept: one numbered folder each (0001, 0002, ...), which appears complete or not
// at all. One running service per folder. May be used from several threads.
class Inbox {
public:
    // Creates the folder when needed, locks it and removes what an earlier run left half done.
    // Throws std::runtime_error or std::filesystem::filesystem_error.
    explicit Inbox(std::filesystem::path folder);
    ~Inbox();
    Inbox(const Inbox&) = delete;
    Inbox& operator=(const Inbox&) = delete;

    std::filesystem::path stagingFolder() const { return m_folder / ".staging"; }
    // Moves the staged release into the inbox; returns its number.
    std::int64_t accept(const Staging& staging);
    std::int64_t accepted() const;

private:
    std::filesystem::path m_folder;
    mutable std::mutex m_mutex;
    std::int64_t m_last = 0;
    std::int64_t m_accepted = 0;
    int m_lock = -1;
};

} // namespace sandbox
