#include "sandbox/launcher.h"

#include <cerrno>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace sandbox {

int runProgram(const std::vector<std::string>& words) {
    auto copies = words;
    std::vector<char*> pointers;
    pointers.reserve(copies.size() + 1);
    for (auto& word : copies) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    pid_t child = 0;
    const int error = ::posix_spawnp(&child, pointers.front(), nullptr, nullptr, pointers.data(), environ);
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), "cannot start " + words.front());
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "cannot wait for " + words.front());
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string findBeside(const std::string& name) {
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto candidate = self.parent_path() / name;
    return !error && ::access(candidate.c_str(), X_OK) == 0 ? candidate.string() : std::string();
}

} // namespace sandbox
