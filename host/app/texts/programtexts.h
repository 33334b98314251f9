#pragma once

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

} // namespace xbr::host
