#pragma once

#include "framework/support/parts/classfactory.h"

namespace brindlex {

/// The components that forms create by class name (category "Component"): "FeedElement", "FeedListComponent",
/// "ImageElement", "ImageElementCache", "PersistentImageCache".
xbr::ClassFactory& componentClasses();

/// Offers them to the host, and takes them back: a part of the module.
bool addComponentClasses();
void removeComponentClasses();

} // namespace brindlex
