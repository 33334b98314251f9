#pragma once

#include "framework/abi/attributes.h"

namespace xbr {

/// What a class is, for the host's look-up. All texts live as long as the module.
struct ClassDescription {
    std::uint32_t flags; ///< 0
    Uid uid;             ///< creates instances through the plug-in manager
    Text category;       ///< "ProgramService", "Publisher", "Gadget", "MetaClass"
    Text name;
    Text group;   ///< empty unless a category defines it
    Text version; ///< empty unless a category defines it
};

/// Enumerates classes and creates their instances.
struct IClassFactory : IObject {
    static constexpr Uid kUid = uid("b4937c91-a489-4c43-92c5-c7fafcd68e11");

    /// The border's version that the factory was built with. First in the interface, so that it can be asked
    /// before anything else is relied on.
    virtual std::uint32_t borderVersion() const noexcept = 0;

    virtual std::int32_t countClasses() const noexcept = 0;

    /// Description `index`; null beyond the last.
    virtual const ClassDescription* classAt(std::int32_t index) const noexcept = 0;

    /// Attributes of class `index`, such as "Class:MetaClassID"; null when it has none.
    virtual const IAttributes* attributesAt(std::int32_t index) const noexcept = 0;

    /// Creates an instance and answers the interface, handed over. kNoInterface: unknown class, or the class
    /// does not have the interface; kUnexpected: the module is not started.
    virtual Result createInstance(const Uid& classUid, const Uid& interfaceUid, void** out) noexcept = 0;
};

/// What a module tells about itself; asked of its class factory.
struct IModuleInfo : IObject {
    static constexpr Uid kUid = uid("1b20095e-8b7f-4448-8bd9-7a0054d0d158");

    /// The module's own version, for people: "1.2.0".
    virtual Text version() const noexcept = 0;
};

/// Tells a module about the host.
struct IHostContext : IObject {
    static constexpr Uid kUid = uid("555a6fef-b65e-4e19-b024-25972e69b932");

    /// The border's version that the host was built with. First in the interface.
    virtual std::uint32_t borderVersion() const noexcept = 0;

    virtual Text hostName() const noexcept = 0;
    virtual Text hostVersion() const noexcept = 0;
};

/// A service that the host creates once after loading a module (class category "ProgramService").
struct IProgramService : IObject {
    static constexpr Uid kUid = uid("6bd77681-d8b6-441f-8470-f0f8e4657081");

    /// Called once after creation; `context` is kept until `terminate`. kUnexpected: the versions of the
    /// border do not fit.
    virtual Result initialise(IHostContext* context) noexcept = 0;

    /// The classes that the service adds, handed over; kFalse and null before `initialise`. The host adds
    /// them to the plug-in manager and removes them before `terminate`.
    virtual Result getClasses(IClassFactory** out) noexcept = 0;

    /// Called once before the last release, while the module is still loaded.
    virtual Result terminate() noexcept = 0;
};

enum class ModuleReason : std::int32_t { kLoad = 1, kUnload = 2 };

} // namespace xbr

/// The module's entry point, looked up by name. `moduleHandle` is the host's handle of the library, never
/// null; `reason` is a ModuleReason, any other value does nothing. Answers 1 for success and 0 for failure.
/// Before it closes the library the host unloads the module by a call, also one that failed to load: what
/// began until then is undone by it.
XBR_API std::int32_t XBRModuleMain(void* moduleHandle, std::int32_t reason) noexcept;

/// The module's class factory, looked up by name: borrowed, the same each time, valid until the library is
/// closed. The host asks it for the border's version before anything else, also before the load. Asking for
/// an instance before a load answers kUnexpected.
XBR_API xbr::IClassFactory* XBRGetClassFactory() noexcept;
