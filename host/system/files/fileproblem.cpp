#include "host/system/files/fileproblem.h"

#include <filesystem>
#include <set>
#include <utility>

namespace xbr::host {

namespace {

// Neither is ever destroyed: streams may outlive the statics of this library.

std::function<void(const Problem&)>& listener() {
    static auto* const listener = new std::function<void(const Problem&)>;
    return *listener;
}

std::set<std::string>& incompleteFiles() {
    static auto* const paths = new std::set<std::string>;
    return *paths;
}

std::string normalPath(const std::string& path) {
    return std::filesystem::path(path).lexically_normal().string();
}

std::string prefixOf(const std::string& folder) {
    return normalPath(folder + '/');
}

} // namespace

void setFileProblemListener(std::function<void(const Problem&)> hears) {
    listener() = std::move(hears);
}

void noteFileProblem(const Problem& problem) {
    if (const auto hears = listener()) {
        hears(problem);
    }
}

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
