#include "desktop/shell/disk_worker.h"

#include <gmock/gmock.h>

#include <QApplication>

#include <chrono>

/// Real windows, on a screen that nobody sees. A disk is as fast as its test says, however much the
/// computer has to do.
int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(argc, argv);
    kavela::desktop::disk::setPatience(std::chrono::seconds(30));
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
