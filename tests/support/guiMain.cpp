#include <QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
