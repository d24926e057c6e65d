#include <QTemporaryDir>

#include <gtest/gtest.h>

// No application object here: the driver under test owns its own.
int main(int argc, char **argv) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
