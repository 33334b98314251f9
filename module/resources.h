#pragma once

namespace brindlex {

/// Makes the module's resources readable as "resource://brindlex/...", and takes them back. For the module's
/// initialise and terminate functions.
bool registerResources(void*, void*);
void unregisterResources(void*);

} // namespace brindlex
