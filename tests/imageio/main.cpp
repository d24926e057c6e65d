#include "TestFiles.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.value(1) == QStringLiteral("--overwrite-until-killed"))
        return testio::overwriteUntilKilled(arguments.value(2));
    return RUN_ALL_TESTS();
}
