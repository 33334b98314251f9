#pragma once

#include <cassert>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace xbr::host {

/// What went wrong, as far as the user can do something about it.
enum class Fault : std::uint8_t {
    kNone,

    // A file
    kMissing,           ///< it is not there
    kUnreadable,        ///< it is there, and may not or cannot be read
    kNotFile,           ///< a folder, a device
    kNotAudio,          ///< no audio that can be read
    kWrongKind,         ///< audio of another kind than its name says: `found` and `expected` name both
    kCutShort,          ///< it holds less than it says: `found` and `expected` are lengths, where known
    kWrongRate,         ///< a sample rate that no audio has: `found`
    kNotNumbers,        ///< samples that are not numbers
    kNameNotUtf8,       ///< no archive can hold its name
    kNameControl,       ///< its name holds control characters
    kChanged,           ///< it changed while it was copied
    kDiskFull,          ///< no room where `subject` should be written
    kNotWritable,       ///< `subject` cannot be written for another reason
    kNoTemporaryFolder, ///< there is no folder for copies

    // The service; `code` is an HTTP status where one came, otherwise 0
    kNoServer,       ///< nobody answers at `subject`
    kUntrusted,      ///< the server at `subject` cannot prove its identity
    kConnectionLost, ///< the connection broke
    kStalled,        ///< nothing moved for too long
    kReplyTooLarge,  ///< more came back than is taken
    kSignInRefused,  ///< the credentials are not accepted
    kRefused,        ///< the service said no
    kServerFault,    ///< the service failed

    // The program
    kModule,   ///< the module cannot do what it is asked for
    kWish,     ///< what the user asks for makes no sense
    kCancelled ///< by the user
};

/// What went wrong, and with what. Made where it happens and carried up unchanged; a front end puts it into
/// words.
struct Problem {
    Fault fault = Fault::kNone;
    std::string subject;  ///< the file (a path), the server, the module
    int code = 0;         ///< a number of <cerrno>, or an HTTP status
    std::string words;    ///< the system's or the service's own, for people; may be empty
    std::string found;    ///< what there is
    std::string expected; ///< what there should be

    explicit operator bool() const { return fault != Fault::kNone; }
    bool operator==(const Problem&) const = default;
};

/// A problem with a file after a call of the system failed: tells a full disk and a missing file from the
/// rest, and brings the system's words. `otherwise` is what every other number means.
Problem fileProblem(std::string path, int error, Fault otherwise);

/// The system's words for a number of <cerrno>; empty for 0.
std::string wordsOfErrno(int error);

/// A value, or the problem that there is none.
template <class T>
class [[nodiscard]] Outcome {
public:
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions): functions return either
    Outcome(T value) : m_held(std::in_place_index<0>, std::move(value)) {}
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions)
    Outcome(Problem problem) : m_held(std::in_place_index<1>, std::move(problem)) { assert(this->problem()); }

    explicit operator bool() const { return m_held.index() == 0; }
    T& operator*() { return std::get<0>(m_held); }
    const T& operator*() const { return std::get<0>(m_held); }
    T* operator->() { return &std::get<0>(m_held); }
    const T* operator->() const { return &std::get<0>(m_held); }
    const Problem& problem() const { return std::get<1>(m_held); }

private:
    std::variant<T, Problem> m_held;
};

/// Success, or the problem that there was none.
template <>
class [[nodiscard]] Outcome<void> {
public:
    Outcome() = default;
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions)
    Outcome(Problem problem) : m_problem(std::move(problem)) { assert(m_problem); }

    explicit operator bool() const { return !m_problem; }
    const Problem& problem() const { return m_problem; }

private:
    Problem m_problem;
};

} // namespace xbr::host
