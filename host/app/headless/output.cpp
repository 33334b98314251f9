#include "host/app/headless/output.h"

#include "host/base/textscan.h"

#include <iostream>

namespace xbr::host {

void printError(std::string_view text) {
    std::cerr << "xbrhost: " << plainText(text) << std::endl;
}

} // namespace xbr::host
