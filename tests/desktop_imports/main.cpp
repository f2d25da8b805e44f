#include <gmock/gmock.h>

#include <QApplication>

/// Real windows, on a screen that nobody sees.
int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
