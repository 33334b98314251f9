#pragma once

#include "host/system/package/deflater.h"
#include "host/system/package/packageentries.h"

#include <condition_variable>
#include <memory>
#include <thread>
#include <vector>

namespace xbr::host {

/// A piece of an entry as it goes into the archive.
struct PackedPiece {
    std::shared_ptr<PackageSource> source;
    std::int64_t offset; ///< in the file
    std::size_t size;    ///< in the file
    bool isLast;         ///< of its entry
    bool isDeflated;
    bool isGood = false; ///< false: the file could not be read as it was when it was added
    std::uint32_t checkSum = 0;
    std::size_t packedSize = 0;
    std::vector<std::byte> bytes; ///< the first `packedSize` count
};

/// Reads and deflates entries on all cores, piece by piece, and hands the pieces out in order. It works ahead
/// of its reader by a few pieces and over the entries' borders, so that one large file and many small ones
/// are equally fast; what it holds in memory does not depend on their sizes.
class PackagePipeline {
public:
    static constexpr std::size_t kPieceSize = std::size_t{256} << 10U;
    static constexpr std::size_t kMaximumWorkers = 8;

    /// Starts at once. `entries` must outlive this object.
    explicit PackagePipeline(const std::vector<PackageEntry>& entries);
    PackagePipeline(const PackagePipeline&) = delete;
    PackagePipeline& operator=(const PackagePipeline&) = delete;

    /// Drops what was not read, and waits for the workers to end: for as long as one piece takes.
    ~PackagePipeline();

    /// Waits for the next piece, which is valid until the next call. Each entry has at least one piece. To be
    /// called by one thread, and no more than once for each piece.
    const PackedPiece& next();

private:
    struct Slot {
        PackedPiece piece;
        bool isReady = false;
    };

    void work();
    Slot* claim();
    void assignNextPiece(PackedPiece& piece);
    void publish(Slot& slot);
    Slot& slotOf(std::size_t number) { return m_slots[number % m_slots.size()]; }

    const std::vector<PackageEntry>& m_entries;
    std::mutex m_mutex; ///< guards all below, except for pieces that are being worked on or read
    std::condition_variable m_hasRoom;
    std::condition_variable m_hasPiece;
    std::vector<Slot> m_slots;
    std::size_t m_claimed = 0; ///< number of pieces that workers have taken on
    std::size_t m_read = 0;    ///< number of pieces that the reader is done with
    bool m_isReading = false;
    bool m_isEnding = false;
    std::size_t m_entry = 0; ///< where the next piece is cut
    std::int64_t m_offset = 0;
    std::shared_ptr<PackageSource> m_source;
    std::vector<std::jthread> m_workers;
};

} // namespace xbr::host
