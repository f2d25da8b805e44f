#include <gmock/gmock.h>

#include <QGuiApplication>

/// Text is measured with fonts, and these want an application object; none of it needs a screen.
int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QGuiApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
