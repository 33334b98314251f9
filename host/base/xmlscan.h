#pragma once

#include <QStringView>

#include <string_view>

class QXmlStreamReader;

namespace xbr::host {

/// Reads the next token; false at the end, and for anything malformed. A document type declaration counts as
/// malformed: entities could make a small document grow without bounds, and nothing that is read here needs
/// one.
bool nextToken(QXmlStreamReader& reader);

/// Elements deeper than this are refused by those who read documents from outside.
constexpr int kMaximumXmlDepth = 64;

/// True when an element of the document has so many attributes that reading it would take minutes. Right for
/// the well-formed part of a document without DOCTYPE, in time proportional to its size.
bool hasTooManyAttributes(QStringView document);

/// True when `document` is one well-formed XML document whose root element bears that name.
bool isXmlDocument(std::string_view document, std::string_view root);

} // namespace xbr::host
