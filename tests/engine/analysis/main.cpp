#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv); // finds the plugins that read photographs
    return RUN_ALL_TESTS();
}
