#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// What the host program gives to the components that forms create by class name. Modules never use it.
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

} // namespace xbr::host
