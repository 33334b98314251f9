#include "release/multipartbody.h"

#include <array>
#include <cstdio>

namespace brindlex {

std::string makeBoundary(int number) {
    // The service knows boundaries of four digits, from a generator of 15 bits; here rand() has 31.
    static constexpr unsigned kFifteenBits = 0x7FFF;
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "----------------------------XXBOUNDARY%04X",
                                     static_cast<unsigned>(number) & kFifteenBits);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string partHead(std::string_view boundary, std::string_view fileName) {
    std::string head = "--";
    head.append(boundary).append("\r\nContent-Disposition: form-data; name=\"payload\"; filename=\"");
    head.append(fileName).append("\"\r\n");
    head += "Content-Transfer-Encoding: binary\r\n"
            "Content-Type: application/octet-stream\r\n"
            "\r\n";
    return head;
}

std::string partTail(std::string_view boundary) {
    std::string tail = "\r\n--";
    tail.append(boundary).append("--\r\n");
    return tail;
}

std::string multipartContentType(std::string_view boundary) {
    return std::string("multipart/form-data; boundary=").append(boundary);
}

} // namespace brindlex
