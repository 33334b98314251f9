#pragma once

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace fuzz {

/// The reader that a target tries: whatever the bytes are, it ends, in bounds and in time. Each target's own.
void read(std::string_view input);

/// Ends the run when a promise of the reader does not hold.
inline void expect(bool isSo) {
    if (!isSo) {
        std::abort();
    }
}

/// Cuts the first byte off, which chooses among the ways to read the rest: "0" the first.
inline std::uint8_t takeChoice(std::string_view& input) {
    const auto choice = input.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(input.front() - '0');
    input.remove_prefix(input.empty() ? 0 : 1);
    return choice;
}

/// Cuts the first line off.
inline std::string_view takeLine(std::string_view& input) {
    const auto end = input.find('\n');
    const auto line = input.substr(0, end);
    input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    return line;
}

/// Writes the bytes into a file of the working folder, for readers that want a path.
inline std::string fileOf(const std::string& name, std::string_view bytes) {
    std::ofstream file(name, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    expect(file.flush().good());
    return name;
}

} // namespace fuzz
