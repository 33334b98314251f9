#pragma once

#include "framework/abi/object.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace xbr {

/// Counted reference to an object of the border. There is no construction from a raw pointer: say whether the
/// reference is taken over (`adopt`) or a further one (`share`).
template <class T>
class Ref {
public:
    constexpr Ref() noexcept = default;
    constexpr Ref(std::nullptr_t) noexcept {}
    Ref(const Ref& other) noexcept : m_object(other.m_object) { retain(); }
    Ref(Ref&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}

    template <class U>
    requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other)
    noexcept : m_object(other.get()) { retain(); }

    template <class U>
    requires std::is_convertible_v<U*, T*> Ref(Ref<U>&& other)
    noexcept : m_object(other.detach()) {}

    ~Ref() { reset(); }

    Ref& operator=(Ref other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /// Takes over a reference that the caller owns.
    [[nodiscard]] static Ref adopt(T* object) noexcept {
        Ref result;
        result.m_object = object;
        return result;
    }

    /// Adds a reference to a borrowed object.
    [[nodiscard]] static Ref share(T* object) noexcept {
        Ref result = adopt(object);
        result.retain();
        return result;
    }

    T* get() const noexcept { return m_object; }
    T* operator->() const noexcept { return m_object; }
    T& operator*() const noexcept { return *m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    /// Hands the reference over to the caller.
    [[nodiscard]] T* detach() noexcept { return std::exchange(m_object, nullptr); }

    /// The slot for an out parameter; what was held before is released.
    [[nodiscard]] T** out() noexcept {
        reset();
        return &m_object;
    }

    void reset() noexcept {
        // Cleared first: the release may run code that looks at this reference again.
        if (T* object = std::exchange(m_object, nullptr)) {
            object->release();
        }
    }

    friend bool operator==(const Ref& left, const Ref& right) noexcept {
        return left.m_object == right.m_object;
    }

private:
    void retain() noexcept {
        if (m_object) {
            m_object->retain();
        }
    }

    T* m_object = nullptr;
};

/// Asks an object for another of its interfaces; empty when it has none, or when `object` is null.
template <class Interface, class T>
[[nodiscard]] Ref<Interface> query(T* object) noexcept {
    void* found = nullptr;
    if (object && object->queryInterface(Interface::kUid, &found) == kOk) {
        return Ref<Interface>::adopt(static_cast<Interface*>(found));
    }
    return {};
}

} // namespace xbr
