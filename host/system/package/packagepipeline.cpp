#include "host/system/package/packagepipeline.h"

#include <algorithm>

namespace xbr::host {

namespace {

/// As many as can be of use: one for each core, but none for less than a piece.
std::size_t workersFor(const std::vector<PackageEntry>& entries) {
    std::size_t pieces = 0;
    for (const auto& entry : entries) {
        pieces += 1 + static_cast<std::size_t>(entry.identity.size) / PackagePipeline::kPieceSize;
    }
    const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
    return std::min({cores, pieces, PackagePipeline::kMaximumWorkers});
}

class Worker {
public:
    bool pack(PackedPiece& piece) {
        if (!piece.isDeflated) {
            piece.bytes.resize(piece.size);
            piece.packedSize = piece.size;
            return piece.source->read(piece.offset, piece.bytes);
        }
        m_raw.resize(piece.size);
        if (!piece.source->read(piece.offset, m_raw)) {
            return false;
        }
        piece.checkSum = checkSum(m_raw);
        piece.bytes.resize(Deflater::bound(piece.size));
        piece.packedSize = m_deflater.deflate(m_raw, piece.isLast, piece.bytes);
        return piece.packedSize > 0;
    }

private:
    Deflater m_deflater;
    std::vector<std::byte> m_raw;
};

} // namespace

PackagePipeline::PackagePipeline(const std::vector<PackageEntry>& entries) : m_entries(entries) {
    const auto workers = workersFor(entries);
    m_slots.resize(2 * workers + 2);
    for (std::size_t i = 0; i < workers; ++i) {
        m_workers.emplace_back([this] { work(); });
    }
}

PackagePipeline::~PackagePipeline() {
    const std::lock_guard lock(m_mutex);
    m_isEnding = true;
    m_hasRoom.notify_all();
}

const PackedPiece& PackagePipeline::next() {
    std::unique_lock lock(m_mutex);
    if (std::exchange(m_isReading, true)) {
        slotOf(m_read).isReady = false;
        ++m_read;
        m_hasRoom.notify_one();
    }
    Slot& slot = slotOf(m_read);
    m_hasPiece.wait(lock, [&] { return slot.isReady; });
    return slot.piece;
}

void PackagePipeline::work() {
    Worker worker;
    while (Slot* const slot = claim()) {
        slot->piece.isGood = worker.pack(slot->piece);
        publish(*slot);
    }
}

PackagePipeline::Slot* PackagePipeline::claim() {
    std::unique_lock lock(m_mutex);
    const auto isOver = [this] { return m_isEnding || m_entry == m_entries.size(); };
    m_hasRoom.wait(lock, [&] { return isOver() || m_claimed - m_read < m_slots.size(); });
    if (isOver()) {
        return nullptr;
    }
    Slot& slot = slotOf(m_claimed++);
    assignNextPiece(slot.piece);
    return &slot;
}

void PackagePipeline::assignNextPiece(PackedPiece& piece) {
    const PackageEntry& entry = m_entries[m_entry];
    if (m_offset == 0) {
        m_source = std::make_shared<PackageSource>(entry);
    }
    const auto left = static_cast<std::size_t>(entry.identity.size - m_offset);
    piece.source = m_source;
    piece.offset = m_offset;
    piece.size = std::min(left, kPieceSize);
    piece.isLast = piece.size == left;
    piece.isDeflated = entry.isDeflated;
    if (!piece.isLast) {
        m_offset += static_cast<std::int64_t>(piece.size);
        return;
    }
    m_source.reset();
    m_offset = 0;
    if (++m_entry == m_entries.size()) {
        m_hasRoom.notify_all();
    }
}

void PackagePipeline::publish(Slot& slot) {
    const std::lock_guard lock(m_mutex);
    slot.isReady = true;
    if (&slot == &slotOf(m_read)) {
        m_hasPiece.notify_one();
    }
}

} // namespace xbr::host
