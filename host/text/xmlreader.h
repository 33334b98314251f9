#pragma once

#include <QStringView>

namespace xbr::host {

/// The largest number of attributes that one element of an XML document has. Right for the well-formed part
/// of a document without DOCTYPE, in time proportional to its size.
int mostAttributes(QStringView document);

} // namespace xbr::host
