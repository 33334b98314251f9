#include "host/system/classregistry.h"

#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"

#include <algorithm>

namespace xbr::host {

namespace {

bool describes(const IClassFactory& factory, const Uid& classUid) noexcept {
    for (std::int32_t i = 0; i < factory.countClasses(); ++i) {
        const ClassDescription* description = factory.classAt(i);
        if (description && description->uid == classUid) {
            return true;
        }
    }
    return false;
}

} // namespace

IClassFactory* PlugInManager::factoryOf(const Uid& classUid) const noexcept {
    const auto found = std::find_if(m_factories.rbegin(), m_factories.rend(),
                                    [&](const auto& factory) { return describes(*factory, classUid); });
    return found == m_factories.rend() ? nullptr : found->get();
}

template <class Visitor>
void PlugInManager::visit(Text category, Visitor visitor) const {
    for (const auto& factory : m_factories) {
        for (std::int32_t i = 0; i < factory->countClasses(); ++i) {
            const ClassDescription* description = factory->classAt(i);
            if (description && view(description->category) == view(category) &&
                factoryOf(description->uid) == factory.get() && visitor(*factory, i, *description)) {
                return;
            }
        }
    }
}

Result PlugInManager::createInstance(const Uid& classUid, const Uid& interfaceUid, void** out) noexcept {
    assertMainThread();
    *out = nullptr;
    // Kept: creating may remove the factory.
    const auto factory = Ref<IClassFactory>::share(factoryOf(classUid));
    return factory ? factory->createInstance(classUid, interfaceUid, out) : kNoInterface;
}

Result PlugInManager::addFactory(IClassFactory* factory) noexcept {
    assertMainThread();
    if (!factory) {
        return kInvalidArgument;
    }
    auto added = Ref<IClassFactory>::share(factory);
    if (std::find(m_factories.begin(), m_factories.end(), added) != m_factories.end()) {
        return kFalse;
    }
    m_factories.push_back(std::move(added));
    return kOk;
}

Result PlugInManager::removeFactory(IClassFactory* factory) noexcept {
    assertMainThread();
    const auto found = std::find_if(m_factories.begin(), m_factories.end(),
                                    [&](const auto& known) { return known.get() == factory; });
    if (found == m_factories.end()) {
        return kFalse;
    }
    // Released after it left the list: a factory's end may look the manager up.
    const auto removed = std::move(*found);
    m_factories.erase(found);
    return kOk;
}

std::int32_t PlugInManager::countClasses(Text category) const noexcept {
    assertMainThread();
    std::int32_t count = 0;
    visit(category, [&](const IClassFactory&, std::int32_t, const ClassDescription&) {
        ++count;
        return false;
    });
    return count;
}

const ClassDescription* PlugInManager::classAt(Text category, std::int32_t index,
                                               const IAttributes** attributes) const noexcept {
    assertMainThread();
    const ClassDescription* answer = nullptr;
    const IAttributes* itsAttributes = nullptr;
    if (index >= 0) {
        visit(category,
              [&](const IClassFactory& factory, std::int32_t i, const ClassDescription& description) {
                  if (index-- > 0) {
                      return false;
                  }
                  answer = &description;
                  itsAttributes = factory.attributesAt(i);
                  return true;
              });
    }
    if (attributes) {
        *attributes = itsAttributes;
    }
    return answer;
}

} // namespace xbr::host

xbr::IPlugInManager* XBRGetPlugInManager() noexcept {
    // Never destroyed: modules may still call while the process ends. The same holds for the other accessors.
    static auto* const manager = xbr::make<xbr::host::PlugInManager>().detach();
    return manager;
}
