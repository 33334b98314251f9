#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Reads multipart/form-data the strict way. Written from the grammar, sharing nothing with any sender.
namespace sandbox {

// The one part of an upload's body.
struct FilePart {
    std::string name;
    std::string filename;
    std::size_t offset = 0; // of the contents in the body
    std::size_t length = 0;
};

// The boundary that a Content-Type names. Throws Refusal when the type is not multipart/form-data
// or the boundary is missing or malformed.
std::string boundaryOf(std::string_view contentType);

// The single part of `body`. Throws Refusal for anything else: text before or after, several parts,
// malformed or repeated part headers, a missing closing delimiter.
FilePart parseSinglePart(std::string_view boundary, std::string_view body);

} // namespace sandbox
