#include "host/app/window/start/programtexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

// The resources are in a static library: without this the linker would leave them out.
static void initialiseResources() {
    Q_INIT_RESOURCE(window);
    Q_INIT_RESOURCE(windowtexts);
}

namespace xbr::host {

ProgramTexts::ProgramTexts() {
    initialiseResources();
    const QLocale locale;
    // English has texts of its own, for plurals.
    if (m_own.load(locale, "window", "_", ":/xbrhost/translations") ||
        m_own.load("window_en", ":/xbrhost/translations")) {
        QCoreApplication::installTranslator(&m_own);
    }
    if (m_library.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_library);
    }
}

ProgramTexts::~ProgramTexts() {
    QCoreApplication::removeTranslator(&m_library);
    QCoreApplication::removeTranslator(&m_own);
}

} // namespace xbr::host
