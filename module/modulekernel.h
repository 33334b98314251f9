#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <cstdint>
#include <vector>

namespace brindlex {

/// Loads and unloads the module: runs the functions that are registered for its parts, and keeps what the
/// whole module shares. One per module, created on first use.
class ModuleKernel final : public xbr::Object<xbr::IObserver> {
public:
    /// Two words that travel with a registered function.
    using Word = void*;
    using InitialiseFunction = bool (*)(Word first, Word second);
    using TerminateFunction = void (*)(Word word);

    /// What the module does at start (1) and stop (2).
    using StartFunction = bool (*)(std::int32_t argument);

    static ModuleKernel& instance();

    void addInitialise(InitialiseFunction function, Word first = nullptr, Word second = nullptr);
    void addTerminate(TerminateFunction function, Word word = nullptr);

    /// Releases `object` at teardown.
    void addObject(xbr::Ref<xbr::IObject> object);

    /// Runs the initialise functions in order and then the start function. False when one of them failed.
    /// After a failed start function everything is torn down; after a failed initialise function nothing is
    /// undone.
    bool load(void* moduleHandle, StartFunction start);

    /// Stops and tears down, if a load began. The functions are ready for a later load.
    void unload(StartFunction start);

    /// The host's handle; null while the module is not started.
    void* moduleHandle() const { return m_moduleHandle; }

    /// True from the beginning of a load to the teardown.
    bool isStarted() const { return m_started; }

    void notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;

private:
    struct Initialise {
        InitialiseFunction function;
        Word first;
        Word second;
    };
    struct Terminate {
        TerminateFunction function;
        Word word;
    };

    bool runInitialiseList();
    void tearDown();

    void* m_moduleHandle = nullptr;
    bool m_started = false;
    std::vector<Initialise> m_initialise;
    std::vector<Initialise> m_succeeded;
    std::vector<Terminate> m_terminate;
    std::vector<xbr::Ref<xbr::IObject>> m_objects;
};

} // namespace brindlex
