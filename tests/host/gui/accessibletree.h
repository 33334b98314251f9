#pragma once

#include <string>
#include <vector>

class QWidget;

namespace xbr::host::tests {

/// The controls of a form that a screen reader could not name, one line each. Reads what Qt tells assistive
/// technology, not the widgets.
std::vector<std::string> unnamedControls(QWidget& form);

/// What a screen reader says of a widget beside its name.
std::string accessibleDescription(QWidget& widget);

} // namespace xbr::host::tests
