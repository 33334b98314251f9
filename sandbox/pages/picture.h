#pragma once

#include <string>

namespace sandbox {

// A picture for a news entry as PNG file: drawn, not stored. The same arguments give the same bytes;
// `variant` chooses colours and shapes.
std::string drawPicture(int width, int height, int variant);

} // namespace sandbox
