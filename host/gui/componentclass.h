#pragma once

#include "framework/abi/controller.h"
#include "framework/support/ref.h"

#include <string_view>

namespace xbr::host {

/// Creates a controller of the class of that name (category "Component" of the plug-in manager); empty when
/// there is none.
Ref<IController> createComponentByName(std::string_view name);

} // namespace xbr::host
