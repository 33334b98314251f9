#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // The tests say themselves which proxy and which certificates there are.
    for (const char* name : {"http_proxy", "https_proxy", "all_proxy", "no_proxy", "HTTPS_PROXY", "ALL_PROXY",
                             "NO_PROXY", "SSL_CERT_FILE"}) {
        qunsetenv(name);
    }
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
