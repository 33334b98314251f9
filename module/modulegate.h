#pragma once

namespace brindlex {

/// True from a successful load to the teardown: only then can classes be created.
bool isModuleLoaded();

} // namespace brindlex
