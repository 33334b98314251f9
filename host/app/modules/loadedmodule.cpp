#include "host/app/modules/loadedmodule.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <sstream>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// The libraries of a folder in the order of their names, so that each run is the same.
std::vector<std::string> librariesIn(const fs::path& folder) {
    std::vector<std::string> libraries;
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(folder, ignored)) {
        if (entry.path().extension() == ".so") {
            libraries.push_back(entry.path().string());
        }
    }
    std::sort(libraries.begin(), libraries.end());
    return libraries;
}

std::vector<std::string> modulesOf(const std::string& searchPath) {
    std::vector<std::string> modules;
    std::istringstream parts(searchPath);
    for (std::string part; std::getline(parts, part, ':');) {
        std::error_code ignored;
        if (fs::is_directory(part, ignored)) {
            const auto libraries = librariesIn(part);
            modules.insert(modules.end(), libraries.begin(), libraries.end());
        } else if (!part.empty()) {
            modules.push_back(part);
        }
    }
    return modules;
}

constexpr std::string_view kServiceCategory = "ProgramService";

std::string versionText(std::uint32_t version) {
    return std::to_string(borderMajor(version)) + "." + std::to_string(version & 0xFFFFU);
}

template <class Function>
Function lookUp(void* library, const char* name) {
    return reinterpret_cast<Function>(dlsym(library, name));
}

} // namespace

std::vector<std::string> findModules(const std::string& programFolder) {
    // The environment is read on the main thread, and nothing in the host writes it.
    const char* searchPath = std::getenv("XBRHOST_MODULE_PATH"); // NOLINT(concurrency-mt-unsafe)
    if (searchPath && *searchPath) {
        return modulesOf(searchPath);
    }
    const fs::path libraries = fs::path(programFolder).parent_path() / "lib";
    std::error_code ignored;
    const fs::path built = libraries / "libbrindlex.so";
    return fs::exists(built, ignored) ? std::vector{built.string()}
                                      : librariesIn(libraries / "xbrhost" / "modules");
}

Outcome<std::unique_ptr<LoadedModule>> LoadedModule::inspect(const std::string& path) {
    auto module = std::unique_ptr<LoadedModule>(new LoadedModule(path));
    auto opened = module->open();
    if (opened) {
        opened = module->checkBorder();
    }
    if (!opened) {
        return opened.problem();
    }
    return module;
}

Outcome<std::unique_ptr<LoadedModule>> LoadedModule::load(const std::string& path, IHostContext& context) {
    auto module = inspect(path);
    if (!module) {
        return module;
    }
    auto loaded = (*module)->start();
    if (loaded) {
        loaded = (*module)->startServices(context);
    }
    if (!loaded) {
        return loaded.problem();
    }
    return module;
}

Outcome<void> LoadedModule::open() {
    std::error_code ignored;
    if (!fs::is_regular_file(m_path, ignored)) {
        return problem("is not there");
    }
    // A name without a slash would be searched for in the system's library folders.
    m_library = dlopen(fs::absolute(m_path).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!m_library) {
        const char* reason = dlerror(); // NOLINT(concurrency-mt-unsafe): the C library keeps it per thread
        return problem(std::string("cannot be loaded: ") + (reason ? reason : "no reason was given"));
    }
    m_main = lookUp<decltype(m_main)>(m_library, "XBRModuleMain");
    const auto getFactory = lookUp<decltype(&XBRGetClassFactory)>(m_library, "XBRGetClassFactory");
    if (!m_main || !getFactory) {
        return problem("is a library, but no module");
    }
    m_factory = getFactory();
    return m_factory ? Outcome<void>() : problem("offers no classes");
}

Outcome<void> LoadedModule::checkBorder() {
    const std::uint32_t version = m_factory->borderVersion();
    if (borderMajor(version) != borderMajor(kBorderVersion)) {
        return problem("is made for border version " + versionText(version) + ", this host for " +
                       versionText(kBorderVersion));
    }
    return {};
}

Outcome<void> LoadedModule::start() {
    // Also when it fails half-way: what it registered until then has to go before its code does.
    m_isStarted = true;
    if (m_main(m_library, static_cast<std::int32_t>(ModuleReason::kLoad)) == 0) {
        return problem("refuses to work (a part of it is missing or damaged)");
    }
    return {};
}

Outcome<void> LoadedModule::startServices(IHostContext& context) {
    for (std::int32_t i = 0; i < m_factory->countClasses(); ++i) {
        const ClassDescription* description = m_factory->classAt(i);
        if (description && view(description->category) == kServiceCategory) {
            auto started = startService(*description, context);
            if (!started) {
                return started;
            }
        }
    }
    return m_services.empty() ? problem("offers no service") : Outcome<void>();
}

Outcome<void> LoadedModule::startService(const ClassDescription& description, IHostContext& context) {
    const std::string name = "'" + toString(description.name) + "'";
    void* created = nullptr;
    if (m_factory->createInstance(description.uid, IProgramService::kUid, &created) != kOk) {
        return problem("cannot make its service " + name);
    }
    auto service = Ref<IProgramService>::adopt(static_cast<IProgramService*>(created));
    if (!succeeded(service->initialise(&context))) {
        return problem("cannot start its service " + name);
    }
    Ref<IClassFactory> classes;
    service->getClasses(classes.out());
    if (classes) {
        XBRGetPlugInManager()->addFactory(classes.get());
    }
    m_services.push_back({std::move(service), std::move(classes)});
    return {};
}

std::string LoadedModule::name() const {
    for (std::int32_t i = 0; i < m_factory->countClasses(); ++i) {
        const ClassDescription* description = m_factory->classAt(i);
        if (description && view(description->category) == kServiceCategory) {
            return toString(description->name);
        }
    }
    return {};
}

std::string LoadedModule::version() const {
    const auto info = query<IModuleInfo>(m_factory);
    return info ? toString(info->version()) : std::string();
}

void LoadedModule::stopServices() noexcept {
    while (!m_services.empty()) {
        Service last = std::move(m_services.back());
        m_services.pop_back();
        if (last.classes) {
            XBRGetPlugInManager()->removeFactory(last.classes.get());
        }
        last.classes.reset();
        last.service->terminate();
    }
}

LoadedModule::~LoadedModule() {
    if (m_isStarted) {
        // No answer and no message may reach code that is about to go.
        abortAllRequests();
        stopServices();
        m_main(m_library, static_cast<std::int32_t>(ModuleReason::kUnload));
        dropPostedMessages();
    }
    if (m_library) {
        dlclose(m_library);
    }
}

} // namespace xbr::host
