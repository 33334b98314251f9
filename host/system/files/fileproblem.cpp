#include "host/system/files/fileproblem.h"

#include <utility>

namespace xbr::host {

namespace {

std::string& firstProblem() {
    static auto* const problem = new std::string; // streams may outlive the statics of this library
    return *problem;
}

std::function<void(const Problem&)>& listener() {
    static auto* const listener = new std::function<void(const Problem&)>;
    return *listener;
}

} // namespace

void noteFileProblem(const std::string& what, const Problem& problem) {
    if (firstProblem().empty()) {
        firstProblem() = problem.words.empty() ? what : what + ": " + problem.words;
    }
    if (const auto hears = listener()) {
        hears(problem);
    }
}

void setFileProblemListener(std::function<void(const Problem&)> hears) {
    listener() = std::move(hears);
}

std::string takeFileProblem() {
    return std::exchange(firstProblem(), {});
}

} // namespace xbr::host
