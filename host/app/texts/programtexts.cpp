#include "host/app/texts/programtexts.h"

#include "host/base/languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>

// The texts are in a static library: without this the linker would leave them out.
static void initialiseTexts() {
    Q_INIT_RESOURCE(programtexts);
}

namespace xbr::host {

namespace {

/// Loads the first that is there for the user's languages.
bool load(QTranslator& translator, const QString& name, const QString& folder) {
    for (const std::string& language : wantedLanguages()) {
        if (translator.load(name + "_" + QString::fromStdString(language), folder)) {
            return QCoreApplication::installTranslator(&translator);
        }
    }
    return false;
}

} // namespace

ProgramTexts::ProgramTexts() {
    initialiseTexts();
    const QString folder = ":/xbrhost/translations";
    // English has texts of its own, for plurals.
    if (!load(m_own, "program", folder) && m_own.load("program_en", folder)) {
        QCoreApplication::installTranslator(&m_own);
    }
    load(m_library, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

ProgramTexts::~ProgramTexts() {
    QCoreApplication::removeTranslator(&m_library);
    QCoreApplication::removeTranslator(&m_own);
}

} // namespace xbr::host
