#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <cstdint>
#include <span>
#include <vector>

namespace brindlex {

/// A part of the module: what it does before the start, and after the stop. `terminate` is called for each
/// part at the teardown, also for one that never began or whose `initialise` failed, and does nothing for
/// such a one.
struct ModulePart {
    bool (*initialise)();
    void (*terminate)();
};

/// Loads and unloads the module: begins its parts in their order, ends them in the reverse one, and keeps the
/// objects that live in between.
class ModuleKernel final : public xbr::Object<xbr::IObserver> {
public:
    /// What the module does at start (1) and stop (2).
    using StartFunction = bool (*)(std::int32_t argument);

    /// `parts` must live as long as the kernel.
    ModuleKernel(std::span<const ModulePart> parts, StartFunction start) : m_parts(parts), m_start(start) {}

    /// Releases `object` at teardown.
    void addObject(xbr::Ref<xbr::IObject> object);

    /// Begins the parts and then starts. After a failed start everything is torn down. When a part fails
    /// nothing is undone: that is for `unload`, which a host calls after a failed load, too.
    bool load(void* moduleHandle);

    /// Stops and tears down, if a load began. A later load begins anew.
    void unload();

    void notify(xbr::ISubject*, xbr::IMessage*) noexcept override {}

private:
    void tearDown();

    std::span<const ModulePart> m_parts;
    StartFunction m_start;
    void* m_moduleHandle = nullptr; ///< null while the module is not started
    bool m_isLoaded = false;        ///< every part began, and the start succeeded
    std::vector<xbr::Ref<xbr::IObject>> m_objects;
};

/// True from a successful load to the teardown: only then can classes be created.
bool isModuleLoaded();

} // namespace brindlex
