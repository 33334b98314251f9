#pragma once

#include <set>
#include <string>
#include <string_view>

namespace sandbox {

// What the service learns from a release's metadata.json.
struct Metadata {
    std::set<std::string> audioFiles; // plain file names; each must be an entry of assets/
};

// Checks the document as the service does. Throws Refusal: 400 for a document that is not of the agreed shape
// (keys, their order and types), 422 for a well-formed one that leaves out what a release cannot do without.
Metadata checkMetadata(std::string_view text, std::string_view clientId);

} // namespace sandbox
