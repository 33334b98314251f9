#pragma once

#include "framework/abi/uid.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

/// A panel that a module offers, as its description tells before the panel is opened. What the description
/// leaves out is empty.
struct GadgetClass {
    Uid uid{};        ///< creates the panel's controller
    std::string name; ///< for people
    std::string themeName;
    std::string formName;
    std::string iconName;
    std::string menuIconName;
    std::int64_t menuPriority = 0; ///< lower ones come first
};

/// The panels of all modules that are loaded, in the order in which a menu lists them.
std::vector<GadgetClass> findGadgets();

} // namespace xbr::host
