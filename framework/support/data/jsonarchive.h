#pragma once

#include "framework/abi/stream.h"
#include "framework/support/data/attributes.h"

namespace xbr {

/// Reads a JSON object from the stream's position; empty when there is none.
Ref<Attributes> readJson(IStream& stream);

/// Writes a tree as JSON; false when the stream does not take it.
bool writeJson(const Attributes& root, IStream& stream);

} // namespace xbr
