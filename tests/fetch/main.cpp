#include <gmock/gmock.h>

#include <QCoreApplication>

/// Servers and what asks them live in one event loop.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
