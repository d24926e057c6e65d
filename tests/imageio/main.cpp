#include "TestFiles.h"

#include <QGuiApplication>

using namespace testio;

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.value(1) == u"--overwrite-until-killed"_s)
        return overwriteUntilKilled(arguments.value(2));
    return RUN_ALL_TESTS();
}
