#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/ref.h"

class QMenu;

namespace xbr::host {

/// Adds commands to a menu, with a line between their categories. The menu keeps the commands.
void addCommands(QMenu& menu, const Ref<ICommandList>& commands);

} // namespace xbr::host
