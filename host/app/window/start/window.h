#pragma once

#include "host/app/process/exitcodes.h"
#include "host/app/window/start/windowoptions.h"

#include <QTranslator>

namespace xbr::host {

/// The program's texts in the user's language, and those of Qt's own dialogs where they are installed. In
/// force as long as this object lives.
class ProgramTexts {
public:
    ProgramTexts();
    ProgramTexts(const ProgramTexts&) = delete;
    ProgramTexts& operator=(const ProgramTexts&) = delete;
    ~ProgramTexts();

private:
    QTranslator m_own;
    QTranslator m_library;
};

/// Opens the window and runs until it is closed. When this user has a window already, that one is shown and
/// gets the files.
ExitCode runWindow(int& argc, char** argv, const WindowOptions& options);

} // namespace xbr::host
