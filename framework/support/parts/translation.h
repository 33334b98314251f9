#pragma once

#include "framework/abi/locale.h"

#include <string>

namespace xbr {

/// `source`, an English text of a module, as the module's table has it; as it is without a table (null).
std::string translate(Text source, ITranslationTable* translations);

} // namespace xbr
