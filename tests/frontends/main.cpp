#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    qputenv("TMPDIR", folder.path().toUtf8());
    QCoreApplication::setOrganizationName(QStringLiteral("Orvane Works tests"));
    QCoreApplication::setApplicationName(QStringLiteral("frontends"));
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
