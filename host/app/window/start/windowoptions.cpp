#include "host/app/window/start/windowoptions.h"

#include <filesystem>

namespace xbr::host {

namespace {

/// Another process may get the path, with a working folder of its own.
std::string absolute(const std::string& path) {
    std::error_code failed;
    const auto result = std::filesystem::absolute(path, failed);
    return failed ? path : result.lexically_normal().string();
}

Problem wish(std::string words) {
    return {Fault::kWish, {}, 0, std::move(words), {}, {}};
}

} // namespace

bool isForWindow(const std::vector<std::string>& arguments) {
    return arguments.empty() || arguments.front() == "window";
}

Outcome<WindowOptions> parseWindowOptions(const std::vector<std::string>& arguments) {
    WindowOptions options;
    bool areOptionsOver = false;
    for (std::size_t next = 1; next < arguments.size(); ++next) {
        const std::string& argument = arguments[next];
        if (areOptionsOver || argument.size() < 2 || argument.front() != '-') {
            options.files.push_back(absolute(argument));
        } else if (argument == "--") {
            areOptionsOver = true;
        } else if (argument != "--module") {
            return wish("there is no option '" + argument + "' here");
        } else if (++next < arguments.size()) {
            options.module = arguments[next];
        } else {
            return wish("something is missing after --module");
        }
    }
    return options;
}

} // namespace xbr::host
