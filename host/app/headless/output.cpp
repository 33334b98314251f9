#include "host/app/headless/output.h"

#include <iostream>

namespace xbr::host {

std::string plainText(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
        if (byte < 0x20 || byte == 0x7F) {
            plain += ' ';
        } else if (byte == 0xC2 && next >= 0x80 && next < 0xA0) { // U+0080 to U+009F in UTF-8
            plain += ' ';
            ++i;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

void printError(std::string_view text) {
    std::cerr << "xbrhost: " << plainText(text) << std::endl;
}

} // namespace xbr::host
