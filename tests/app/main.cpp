#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QCoreApplication::setOrganizationName(u"Orvane Works tests"_s);
    QCoreApplication::setApplicationName(u"app"_s);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
