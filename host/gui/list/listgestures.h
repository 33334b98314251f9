#pragma once

#include "framework/abi/listmodel.h"
#include "framework/abi/locale.h"
#include "framework/support/objects/ref.h"

class QMimeData;

class QMenu;

namespace xbr::host {

/// The locations that are dragged, as objects (IUrlSource) in their order.
Ref<IObjectIterator> draggedObjects(const QMimeData& data);

/// Adds commands to a menu, with a line between their categories; their names are English texts, shown in the
/// language of `translations` (may be null). The menu keeps the commands.
void addCommands(QMenu& menu, const Ref<ICommandList>& commands, ITranslationTable* translations);

} // namespace xbr::host
