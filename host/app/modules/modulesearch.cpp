#include "host/app/modules/modulesearch.h"

#include <algorithm>
#include <cstdlib>
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

} // namespace xbr::host
