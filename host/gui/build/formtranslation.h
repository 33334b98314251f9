#pragma once

#include "framework/abi/locale.h"

#include <QByteArray>

#include <string>

namespace xbr::host {

/// The form with its texts in the user's language. `form` is well-formed; texts marked as not to be
/// translated
/// (`notr`) stay as they are.
QByteArray translateForm(const std::string& form, ITranslationTable& translations);

} // namespace xbr::host
