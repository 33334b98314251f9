#include "host/app/texts/programtexts.h"
#include "tests/window/smalldisk.h"

#include <QApplication>
#include <QStyleFactory>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Without a screen, and in English, wherever the tests run.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    xbr::host::tests::SmallDisk::mountOne();
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const xbr::host::ProgramTexts texts;
    return RUN_ALL_TESTS();
}
