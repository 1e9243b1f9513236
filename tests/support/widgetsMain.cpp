#include <cstdlib>

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    // A test must not depend on the screen it happens to run on, also when it is started by hand.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    ::testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
