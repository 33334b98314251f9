#include "host/base/problem.h"

#include <cerrno>
#include <system_error>

namespace xbr::host {

namespace {

Fault faultOf(int error, Fault otherwise) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return Fault::kMissing;
    case ENOSPC:
    case EDQUOT:
        return Fault::kDiskFull;
    default:
        return otherwise;
    }
}

} // namespace

Problem fileProblem(std::string path, int error, Fault otherwise) {
    return {faultOf(error, otherwise), std::move(path), error, wordsOfErrno(error), {}, {}};
}

std::string wordsOfErrno(int error) {
    return error == 0 ? std::string() : std::generic_category().message(error);
}

} // namespace xbr::host
