#pragma once

#include "ui/pictures/imageelementcache.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// Keeps pictures in memory, and in files of the user's cache folder beyond the run. Several processes may
/// use the files at once: each is written as a whole, and one that has gone is fetched again.
class PersistentImageCache final : public ImageElementCache {
public:
    /// Of all files together: a thousand pictures. When there are more, those that were fetched longest ago
    /// go.
    static constexpr std::uint64_t kMaximumBytes = std::uint64_t{256} << 20U;

    /// A file that was fetched so long ago is of no use.
    static constexpr std::int64_t kKeepSeconds = std::int64_t{90} * 24 * 3600;

    PersistentImageCache() : ImageElementCache("PersistentImageCache") {}

    std::optional<StoredPicture> load(std::string_view location) override;
    void store(std::string_view location, const xbr::CopyTerms& terms, const std::string& bytes) override;
    void remove(std::string_view location) override;

private:
    const std::string& folder();
    std::string fileOf(std::string_view location);
    void write(const StoredPicture& picture);
    void tidy();

    std::optional<std::string> m_folder; ///< empty text: the host has none
    std::uint64_t m_bytes = 0;           ///< of all files when they were counted, and what was written since
    bool m_isCounted = false;
};

} // namespace brindlex
