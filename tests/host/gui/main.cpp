#include <QApplication>
#include <QStyleFactory>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("XBR_DEBUG", "1"); // warnings about forms are part of what is tested
    qputenv("TZ", "UTC");
    qputenv("no_proxy", "127.0.0.1");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    return RUN_ALL_TESTS();
}
