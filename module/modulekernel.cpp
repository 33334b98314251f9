#include "module/modulekernel.h"

#include <utility>

namespace brindlex {

namespace {

constexpr std::int32_t kStart = 1;
constexpr std::int32_t kStop = 2;

} // namespace

ModuleKernel& ModuleKernel::instance() {
    static const auto kernel = xbr::make<ModuleKernel>();
    return *kernel;
}

void ModuleKernel::addInitialise(InitialiseFunction function, Word first, Word second) {
    m_initialise.push_back({function, first, second});
}

void ModuleKernel::addTerminate(TerminateFunction function, Word word) {
    m_terminate.push_back({function, word});
}

void ModuleKernel::addObject(xbr::Ref<xbr::IObject> object) {
    m_objects.push_back(std::move(object));
}

bool ModuleKernel::load(void* moduleHandle, StartFunction start) {
    if (m_started && m_initialise.empty()) {
        return true; // loaded already
    }
    m_moduleHandle = moduleHandle;
    m_started = true;
    if (!runInitialiseList()) {
        return false;
    }
    if (!start(kStart)) {
        tearDown();
        m_moduleHandle = nullptr;
        return false;
    }
    return true;
}

bool ModuleKernel::runInitialiseList() {
    m_succeeded.clear(); // what an earlier load that failed half-way left there runs again
    for (const Initialise& entry : m_initialise) {
        if (!entry.function(entry.first, entry.second)) {
            return false;
        }
        m_succeeded.push_back(entry);
    }
    m_initialise.clear();
    return true;
}

void ModuleKernel::unload(StartFunction start) {
    if (!m_moduleHandle) {
        return;
    }
    start(kStop);
    tearDown();
    m_moduleHandle = nullptr;
}

void ModuleKernel::tearDown() {
    for (auto entry = m_terminate.rbegin(); entry != m_terminate.rend(); ++entry) {
        entry->function(entry->word);
    }
    // Moved out first: an object that goes may look at the kernel.
    std::exchange(m_objects, {}).clear();
    if (m_initialise.empty()) {
        m_initialise = std::exchange(m_succeeded, {});
    }
    m_succeeded.clear();
    m_started = false;
    XBRGetSignalHandler()->forgetObserver(this);
}

void ModuleKernel::notify(xbr::ISubject*, xbr::IMessage*) noexcept {}

} // namespace brindlex
