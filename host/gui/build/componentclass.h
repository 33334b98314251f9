#pragma once

#include "framework/abi/controller.h"
#include "framework/support/objects/ref.h"

#include <string_view>

namespace xbr::host {

/// Creates a controller of the class of that name (category "Component" of the plug-in manager) for a form of
/// `module`, with the properties that the host program has for it; empty when there is none.
Ref<IController> createComponentByName(std::string_view name, std::string_view module);

} // namespace xbr::host
