#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace xbr::host {

/// That a song was published from this computer.
struct Publication {
    std::string file;        ///< its name, without the folder
    std::string fingerprint; ///< of the file's content
    std::string account;     ///< may be empty
    std::int64_t time = 0;   ///< seconds since 1970
};

/// What was published from this computer, in the file "xbrhost/published.json" of the user's data folder:
/// names, times and checksums. A file that cannot be read counts as empty; it is not written over then.
class History {
public:
    /// The user's own; `path` is for another place.
    explicit History(std::string path = {});

    /// When this file, whatever its name and place is now, was published by the account last. An account that
    /// is not known yet stands for every one.
    std::optional<Publication> find(const std::string& path, const std::string& account) const;

    /// The same by the fingerprint.
    std::optional<Publication> findFingerprint(const std::string& fingerprint,
                                               const std::string& account) const;

    /// Of a file's size, start, middle and end: a song of two hours is not read whole to be known again.
    /// Empty when it cannot be read. Any thread.
    static std::string fingerprintOf(const std::string& path);

    bool isEmpty() const { return m_all.empty(); }

    /// Adds files that were published now, and writes the file. Nothing happens when it cannot be written.
    void add(const std::vector<std::string>& paths, const std::string& account);

private:
    void read();
    void write() const;

    std::string m_path;
    bool m_isReadable = true;
    std::vector<Publication> m_all;
};

} // namespace xbr::host
