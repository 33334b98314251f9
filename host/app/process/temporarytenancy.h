#pragma once

namespace xbr::host {

/// Marks the temporary folder of this process as inhabited, and removes those whose inhabitants are dead: a
/// host that was killed leaves copies of songs behind. The mark is a lock that the system takes away with the
/// process, however that ends. Folders without a mark belong to others and stay.
class TemporaryTenancy {
public:
    TemporaryTenancy();
    TemporaryTenancy(const TemporaryTenancy&) = delete;
    TemporaryTenancy& operator=(const TemporaryTenancy&) = delete;
    ~TemporaryTenancy();

private:
    int m_mark = -1; ///< descriptor of the lock; -1 for none
};

} // namespace xbr::host
