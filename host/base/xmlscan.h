#pragma once

#include <string_view>

class QXmlStreamReader;

namespace xbr::host {

/// Reads the next token; false at the end, and for anything malformed. A document type declaration counts as
/// malformed: entities could make a small document grow without bounds, and nothing that is read here needs
/// one.
bool nextToken(QXmlStreamReader& reader);

/// True when `document` is one well-formed XML document whose root element bears that name.
bool isXmlDocument(std::string_view document, std::string_view root);

} // namespace xbr::host
