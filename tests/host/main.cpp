#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    // The intercom's tests start this program again as the second instance of a user.
    const QGuiApplication application(argc, argv);
    extern int runAsInstance(const QStringList &arguments);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() > 1 && arguments[1] == QLatin1String("--instance"))
        return runAsInstance(arguments.mid(2));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
