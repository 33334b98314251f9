#include "host/system/files/incompletefiles.h"

#include <filesystem>
#include <set>

namespace xbr::host {

namespace {

std::set<std::string>& incompleteFiles() {
    static auto* const paths = new std::set<std::string>; // streams may outlive the statics of this library
    return *paths;
}

std::string normalPath(const std::string& path) {
    return std::filesystem::path(path).lexically_normal().string();
}

std::string prefixOf(const std::string& folder) {
    return normalPath(folder + '/');
}

} // namespace

void noteIncompleteFile(const std::string& path) {
    incompleteFiles().insert(normalPath(path));
}

void forgetIncompleteFiles(const std::string& path) {
    incompleteFiles().erase(normalPath(path));
    std::erase_if(incompleteFiles(), [&](const auto& file) { return file.starts_with(prefixOf(path)); });
}

std::string incompleteFileIn(const std::string& folder) {
    const auto found = incompleteFiles().lower_bound(prefixOf(folder));
    return found != incompleteFiles().end() && found->starts_with(prefixOf(folder)) ? *found : std::string();
}

} // namespace xbr::host
