#pragma once

#include <string>
#include <string_view>

namespace brindlex {

/// The multipart/form-data body (RFC 7578) of one upload: `partHead`, the archive's bytes, `partTail`.

/// A boundary: 28 hyphens, "XXBOUNDARY" and the low 15 bits of `number` as four upper-case hexadecimal
/// digits.
std::string makeBoundary(int number);

/// The delimiter, the part's three headers and the empty line. The part is named "payload".
std::string partHead(std::string_view boundary, std::string_view fileName);

/// The closing delimiter.
std::string partTail(std::string_view boundary);

/// The value of the request's Content-Type header.
std::string multipartContentType(std::string_view boundary);

} // namespace brindlex
