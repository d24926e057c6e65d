#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
