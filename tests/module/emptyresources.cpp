#include "module/resources.h"

/// The archive is in the extension's library only.
std::span<const unsigned char> brindlex::resourceArchive() {
    return {};
}
