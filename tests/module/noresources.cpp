#include "module/resources.h"

namespace brindlex {

/// The archive is in the extension's library only.
bool registerResources(void*, void*) {
    return true;
}
void unregisterResources(void*) {}

} // namespace brindlex
