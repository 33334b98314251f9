#pragma once

#include "host/app/window/dialogs/windowcontext.h"

#include <QStringList>

namespace xbr::host {

struct FileQuestion {
    QString title;
    QStringList filters; ///< as QFileDialog takes them; empty for any file
    bool isSaving = false;
    bool isForSeveral = false;
};

/// Asks the user for files, beginning in the folder where they were last; empty when the user thinks better
/// of it, or when the program is to end meanwhile. Runs the event loop.
QStringList askForFiles(WindowContext& context, const FileQuestion& question);

} // namespace xbr::host
