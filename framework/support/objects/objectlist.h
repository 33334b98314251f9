#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/object.h"

#include <vector>

namespace xbr {

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

} // namespace xbr
