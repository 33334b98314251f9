#pragma once

#include "framework/abi/listmodel.h"
#include "framework/abi/object.h"
#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/ref.h"

#include <tuple>
#include <type_traits>
#include <vector>

namespace xbr {

/// The reference count of an object. Not thread-safe: objects live on the main thread.
class RefCounted {
public:
    RefCounted() = default;
    RefCounted(const RefCounted&) = delete;
    RefCounted& operator=(const RefCounted&) = delete;
    virtual ~RefCounted() = default;

    virtual Result queryInterface(const Uid& interfaceUid, void** out) noexcept;
    virtual std::uint32_t retain() noexcept { return ++m_count; }
    virtual std::uint32_t release() noexcept;

protected:
    /// Answers `self` through *out with a further reference.
    Result answer(void* self, void** out) noexcept;

private:
    std::uint32_t m_count = 1;
};

/// Adds interfaces to a class: `queryInterface` finds them, and the count stays the one of the base. The
/// first interface of all is the object's identity, its IObject.
template <class Base, class... Interfaces>
class Implements : public Base, public Interfaces... {
public:
    using Base::Base;

    Result queryInterface(const Uid& interfaceUid, void** out) noexcept override {
        if constexpr (std::is_same_v<Base, RefCounted>) {
            using Identity = std::tuple_element_t<0, std::tuple<Interfaces...>>;
            if (interfaceUid == IObject::kUid) {
                return this->answer(static_cast<IObject*>(static_cast<Identity*>(this)), out);
            }
        }
        void* found = nullptr;
        ((found = !found && interfaceUid == Interfaces::kUid ? static_cast<Interfaces*>(this) : found), ...);
        return found ? this->answer(found, out) : Base::queryInterface(interfaceUid, out);
    }
    std::uint32_t retain() noexcept override { return Base::retain(); }
    std::uint32_t release() noexcept override { return Base::release(); }
};

/// A counted object with the given interfaces.
template <class... Interfaces>
using Object = Implements<RefCounted, Interfaces...>;

/// Creates a counted object; the one reference is the caller's.
template <class T, class... Arguments>
[[nodiscard]] Ref<T> make(Arguments&&... arguments) {
    return Ref<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

/// Gives the objects of a list one after the other.
class ObjectList final : public Object<IObjectIterator> {
public:
    void add(Ref<IObject> object) { m_objects.push_back(std::move(object)); }

    Result next(IObject** out) noexcept override {
        *out = m_next < m_objects.size() ? Ref<IObject>(m_objects[m_next++]).detach() : nullptr;
        return *out ? kOk : kFalse;
    }

private:
    std::vector<Ref<IObject>> m_objects;
    std::size_t m_next = 0;
};

/// Creates an object of a class of the host, by the class UID of its interface; empty when the host does not
/// offer it.
template <class Interface>
[[nodiscard]] Ref<Interface> createHostObject() {
    void* created = nullptr;
    const Result result =
        XBRGetPlugInManager()->createInstance(Interface::kClassUid, Interface::kUid, &created);
    return Ref<Interface>::adopt(result == kOk ? static_cast<Interface*>(created) : nullptr);
}

} // namespace xbr
