#include "framework/support/objects/object.h"

namespace xbr {

Result RefCounted::queryInterface(const Uid&, void** out) noexcept {
    *out = nullptr;
    return kNoInterface;
}

std::uint32_t RefCounted::release() noexcept {
    const std::uint32_t count = --m_count;
    if (count == 0) {
        // Destructors may hand the object out once more (a message, an observer list); the count must not
        // reach zero a second time then.
        m_count = 1;
        delete this;
    }
    return count;
}

Result RefCounted::answer(void* self, void** out) noexcept {
    retain();
    *out = self;
    return kOk;
}

} // namespace xbr
