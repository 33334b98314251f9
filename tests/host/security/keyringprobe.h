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

/// Ends the session bus, and returns when it is gone.
void endSessionBus();

/// The value of an environment variable; empty when there is none.
std::string environment(const char* name);
void setEnvironment(const char* name, const char* value);

} // namespace xbr::host::test
