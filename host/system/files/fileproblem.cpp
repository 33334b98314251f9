#include "host/system/files/fileproblem.h"

#include "host/system/hostsystem.h"

#include <system_error>
#include <utility>

namespace xbr::host {

namespace {

std::string& firstProblem() {
    static auto* const problem = new std::string; // streams may outlive the statics of this library
    return *problem;
}

} // namespace

void noteFileProblem(const std::string& what, int error) {
    if (firstProblem().empty()) {
        firstProblem() = error == 0 ? what : what + ": " + std::generic_category().message(error);
    }
}

std::string takeFileProblem() {
    return std::exchange(firstProblem(), {});
}

} // namespace xbr::host
