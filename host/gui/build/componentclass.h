#pragma once

#include "framework/abi/controller.h"
#include "framework/support/objects/ref.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// A text property that a component is told.
struct ComponentProperty {
    std::string name;
    std::string value;
};

/// Answers the properties of a new component of `className`, made for a form of the module whose resources
/// bear the name `module`.
using ComponentSettings =
    std::function<std::vector<ComponentProperty>(std::string_view module, std::string_view className)>;

/// Components get what `settings` answers before anything of the form is bound to them; an empty function
/// ends that. Main thread.
[[gnu::visibility("default")]] void setComponentSettings(ComponentSettings settings);

/// Creates a controller of the class of that name (category "Component" of the plug-in manager) for a form of
/// `module`, with the properties that the host program has for it; empty when there is none.
Ref<IController> createComponentByName(std::string_view name, std::string_view module);

} // namespace xbr::host
