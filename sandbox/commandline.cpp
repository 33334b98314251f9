#include "sandbox/commandline.h"

#include <algorithm>
#include <charconv>
#include <iostream>

namespace sandbox {

void CommandLine::addOption(const std::string& name, std::string& target) {
    addOption(name, [&target](const std::string& value) { target = value; });
}

std::vector<std::string> CommandLine::parse(const std::vector<std::string>& words) const {
    std::vector<std::string> arguments;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto& word = words[i];
        if (!word.starts_with("--")) {
            arguments.push_back(word);
            continue;
        }
        const auto equals = word.find('=');
        const auto name = word.substr(0, equals);
        if (const auto found = m_switches.find(name); found != m_switches.end() && name == word) {
            *found->second = true;
            continue;
        }
        const auto option = m_options.find(name);
        if (option == m_options.end()) {
            throw UsageError("unknown option " + name);
        }
        if (equals == std::string::npos && ++i == words.size()) {
            throw UsageError("option " + name + " needs a value");
        }
        option->second(equals == std::string::npos ? words[i] : word.substr(equals + 1));
    }
    return arguments;
}

int runProgram(const std::string& name, const char* help, const std::vector<std::string>& words,
               const std::function<int(const std::vector<std::string>&)>& work) {
    constexpr int kFailed = 1;
    constexpr int kUsage = 2;
    try {
        if (std::find(words.begin(), words.end(), "--help") != words.end()) {
            std::cout << help;
            return 0;
        }
        return work(words);
    } catch (const UsageError& error) {
        std::cerr << name << ": " << error.what() << "\nTry '" << name << " --help'.\n";
        return kUsage;
    } catch (const std::exception& error) {
        std::cerr << name << ": " << error.what() << '\n';
        return kFailed;
    }
}

int numberFrom(const std::string& option, const std::string& text, int least, int most) {
    int number = 0;
    const auto* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || number < least || number > most) {
        throw UsageError("option " + option + " needs a number from " + std::to_string(least) + " to " +
                         std::to_string(most));
    }
    return number;
}

} // namespace sandbox
