#pragma once

#include <span>

namespace brindlex {

/// The archive that the build packs from resources/; a source of its own, see embed.cmake.
std::span<const unsigned char> resourceArchive();

/// Makes the module's resources readable as "resource://brindlex/...", and takes them back: a part of the
/// module. False when the name is taken, by another copy of the module for example.
bool registerResources();
void unregisterResources();

} // namespace brindlex
