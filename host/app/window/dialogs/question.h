#pragma once

#include "host/app/window/dialogs/dialogplace.h"

#include <QString>

#include <vector>

namespace xbr::host {

/// A question before something is lost. The first answer is harmless: Enter chooses it.
struct Question {
    QString title;
    QString text;
    std::vector<QString> answers;
    std::size_t escape = 0; ///< the answer of Escape, and of a program that ends
};

/// Asks, and runs the event loop meanwhile; the number of the answer.
std::size_t ask(DialogPlace& place, const Question& question);

} // namespace xbr::host
