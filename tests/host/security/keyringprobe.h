#pragma once

#include <map>
#include <string>
#include <vector>

namespace xbr::host::test {

/// An item as any other program of the user sees it.
struct SeenItem {
    std::string label;
    std::map<std::string, std::string> attributes;
};

/// All items whose attribute "target" is this.
std::vector<SeenItem> itemsOf(const std::string& target);

/// Locks the default keyring.
void lockKeyring();

/// Stops the process of the keyring, or lets it go on.
void stopKeyring(bool isStopped);

/// While it lives, the keyring's question for a password gets no answer, or is refused at once.
class Prompter {
public:
    enum class Answer { kNone, kRefused };

    explicit Prompter(Answer answer);
    Prompter(const Prompter&) = delete;
    Prompter& operator=(const Prompter&) = delete;
    ~Prompter();

    /// How many questions were refused so far.
    static int refusals();

private:
    void* m_bus;
};

/// Ends the session bus, and returns when it is gone.
void endSessionBus();

/// Runs what GLib has for the event loop.
void runEventLoop();

/// The value of an environment variable; empty when there is none.
std::string environment(const char* name);
void setEnvironment(const char* name, const char* value); ///< null removes it

} // namespace xbr::host::test
