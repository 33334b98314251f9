#pragma once

#include "framework/abi/module.h"
#include "framework/support/objects/object.h"
#include "host/base/problem.h"

#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

/// The libraries to load as modules, by the first of these that names any: the environment variable
/// XBRHOST_MODULE_PATH (files and folders, separated by ":"), the library beside a fresh build
/// ("<program>/../lib/libbrindlex.so"), the installed ones ("<program>/../lib/xbrhost/modules").
///
/// What the environment names is answered whether or not it is there, so that the user hears of a wrong name.
std::vector<std::string> findModules(const std::string& programFolder);

/// A module that is loaded, with its services running and their classes known to the plug-in manager. Its end
/// takes everything back in the reverse order. Objects that the module made must be released before.
class LoadedModule {
public:
    /// Loads the library at `path` and starts it. The words of the problem follow the path.
    static Outcome<std::unique_ptr<LoadedModule>> load(const std::string& path, IHostContext& context);

    /// Loads the library at `path` to ask for its name and versions, without starting it.
    static Outcome<std::unique_ptr<LoadedModule>> inspect(const std::string& path);

    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    ~LoadedModule();

    const std::string& path() const { return m_path; }

    /// What the module calls itself: the name of its first service.
    std::string name() const;

    /// The module's own version; empty when it does not tell.
    std::string version() const;

    /// The version of the border that it was built with.
    std::uint32_t borderVersion() const { return m_factory->borderVersion(); }

private:
    struct Service {
        Ref<IProgramService> service;
        Ref<IClassFactory> classes; ///< empty when the service has none
    };

    explicit LoadedModule(std::string path) : m_path(std::move(path)) {}
    Problem problem(const std::string& words) const { return {Fault::kModule, m_path, 0, words, {}, {}}; }
    Outcome<void> open();
    Outcome<void> checkBorder();
    Outcome<void> start();
    Outcome<void> startServices(IHostContext& context);
    Outcome<void> startService(const ClassDescription& description, IHostContext& context);
    void stopServices() noexcept;

    std::string m_path;
    void* m_library = nullptr;
    decltype(&XBRModuleMain) m_main = nullptr;
    bool m_isStarted = false;
    IClassFactory* m_factory = nullptr; ///< the module's own
    std::vector<Service> m_services;
};

} // namespace xbr::host
