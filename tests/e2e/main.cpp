#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
    // For images and processes only; the windows belong to the program under test.
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
