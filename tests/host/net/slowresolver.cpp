// Stands in for the C library's name look-up, so that names that do not exist and name servers that do not
// answer are the same on every machine.

#include <chrono>
#include <cstring>
#include <dlfcn.h>
#include <netdb.h>
#include <thread>

extern "C" __attribute__((visibility("default"))) int lookUp(const char* node, const char* service,
                                                             const addrinfo* hints,
                                                             addrinfo** result) __asm__("getaddrinfo");

int lookUp(const char* node, const char* service, const addrinfo* hints, addrinfo** result) {
    if (node && std::strcmp(node, "missing.invalid") == 0) {
        return EAI_NONAME;
    }
    if (node && std::strcmp(node, "slow.invalid") == 0) {
        std::this_thread::sleep_for(std::chrono::seconds(2));
        return EAI_AGAIN;
    }
    using Lookup = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
    static const auto real = reinterpret_cast<Lookup>(::dlsym(RTLD_NEXT, "getaddrinfo"));
    return real(node, service, hints, result);
}
