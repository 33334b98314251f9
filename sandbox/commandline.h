#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace sandbox {

// A command line that cannot be understood, in words for its author.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Reads `--name value`, `--name=value` and plain switches; what is left over are the arguments.
class CommandLine {
public:
    using Taker = std::function<void(const std::string& value)>;

    void addOption(const std::string& name, Taker taker) { m_options[name] = std::move(taker); }
    void addOption(const std::string& name, std::string& target);
    void addSwitch(const std::string& name, bool& target) { m_switches[name] = &target; }

    // Throws UsageError. Returns the arguments that are no options.
    std::vector<std::string> parse(const std::vector<std::string>& words) const;

private:
    std::map<std::string, Taker> m_options;
    std::map<std::string, bool*> m_switches;
};

// The main() of a program: prints `help` when it is asked for, else does `work` with the words behind the
// program's name and answers its exit code. Tells on standard error what was thrown (2 for a UsageError, else
// 1).
int runProgram(const std::string& name, const char* help, const std::vector<std::string>& words,
               const std::function<int(const std::vector<std::string>&)>& work);

// A whole number from `least` to `most`. Throws UsageError, naming the option.
int numberFrom(const std::string& option, const std::string& text, int least, int most);

} // namespace sandbox
