#include "module/modulekernel.h"

#include <algorithm>
#include <utility>

namespace brindlex {

namespace {

constexpr std::int32_t kStart = 1;
constexpr std::int32_t kStop = 2;

} // namespace

void ModuleKernel::addObject(xbr::Ref<xbr::IObject> object) {
    m_objects.push_back(std::move(object));
}

bool ModuleKernel::load(void* moduleHandle) {
    if (m_isLoaded) {
        return true;
    }
    m_moduleHandle = moduleHandle;
    if (!std::all_of(m_parts.begin(), m_parts.end(),
                     [](const ModulePart& part) { return part.initialise(); })) {
        return false;
    }
    m_isLoaded = m_start(kStart);
    if (!m_isLoaded) {
        tearDown();
    }
    return m_isLoaded;
}

void ModuleKernel::unload() {
    if (m_moduleHandle) {
        m_start(kStop);
        tearDown();
    }
}

void ModuleKernel::tearDown() {
    for (auto part = m_parts.rbegin(); part != m_parts.rend(); ++part) {
        part->terminate();
    }
    // Moved out first: an object that goes may look at the kernel.
    std::exchange(m_objects, {}).clear();
    m_moduleHandle = nullptr;
    m_isLoaded = false;
    XBRGetSignalHandler()->forgetObserver(this);
}

} // namespace brindlex
