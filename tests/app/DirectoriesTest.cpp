#include "app/Directories.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A small machine: paths in the rows are below a temporary folder, "" stays "".
struct Machine {
    QTemporaryDir folder;

    QString path(const QString &below) const { return below.isEmpty() ? QString() : folder.filePath(below); }
    void make(const QStringList &entries) const {
        for (const QString &entry : entries) {
            if (entry.endsWith(QLatin1Char('/')))
                QDir().mkpath(path(entry));
            else
                EXPECT_TRUE(QFile(path(entry)).open(QIODevice::WriteOnly));
        }
    }
};

struct Row {
    const char *name;
    QStringList tree; ///< folders end in "/", others are files
    QString registered;
    QString program;
    QStringList locations;
    QString root;
    QString logs;
};

const QString below = QStringLiteral("/Orvane Works/Orvane Studio/Logs");
const QStringList home = {QStringLiteral("home")};
const QStringList homeAndShared = {QStringLiteral("home"), QStringLiteral("shared")};

QStringList words(const char *text) {
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST(Directories, RootAndLogsFollowWhatLiesAround) {
    const QString bin = QStringLiteral("tree/bin");
    const QString share = QStringLiteral("tree/share/orvane-studio");
    const Row rows[] = {
        {"registered wins over a tree", words("set/ tree/bin/ tree/share/orvane-studio/models/"),
         QStringLiteral("set/../set"), bin, homeAndShared, QStringLiteral("set"), QStringLiteral("set/Logs")},
        {"program's own folder comes first",
         words("tree/bin/models/ tree/bin/filterData/ tree/share/orvane-studio/models/ "
               "tree/share/orvane-studio/filterData/"),
         {},
         bin,
         homeAndShared,
         bin,
         bin + QStringLiteral("/Logs")},
        {"share beside the program",
         words("tree/bin/ tree/share/orvane-studio/models/ tree/share/orvane-studio/filterData/"),
         {},
         bin,
         homeAndShared,
         share,
         share + QStringLiteral("/Logs")},
        {"one of the two is not enough",
         words("tree/bin/models/ tree/share/orvane-studio/filterData/ shared/"),
         {},
         bin,
         homeAndShared,
         {},
         QStringLiteral("shared") + below},
        {"files of those names are no root",
         words("tree/bin/ tree/bin/models tree/bin/filterData shared/"),
         {},
         bin,
         homeAndShared,
         {},
         QStringLiteral("shared") + below},
        {"program unknown",
         words("models/ filterData/ shared/"),
         {},
         {},
         homeAndShared,
         {},
         QStringLiteral("shared") + below},
        {"a single location", words("home/"), {}, {}, home, {}, QStringLiteral("home") + below},
        {"root can't be written",
         words("home/ shared/ set"),
         QStringLiteral("set"),
         {},
         homeAndShared,
         QStringLiteral("set"),
         QStringLiteral("home") + below},
        {"shared can't be written",
         words("home/ shared"),
         {},
         {},
         homeAndShared,
         {},
         QStringLiteral("home") + below},
        {"nothing can be written",
         words("home shared"),
         {},
         {},
         homeAndShared,
         {},
         QStringLiteral("shared") + below},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const Machine machine;
        machine.make(row.tree);
        Directories::Environment environment{.registeredModelDir = machine.path(row.registered),
                                             .programFolder = machine.path(row.program),
                                             .dataLocations = {}};
        for (const QString &location : row.locations)
            environment.dataLocations << machine.path(location);
        EXPECT_EQ(Directories::installRoot(environment), machine.path(row.root));
        EXPECT_EQ(Directories::logDirectory(environment), machine.path(row.logs));
    }
    EXPECT_EQ(Directories::logDirectory({}), QDir::homePath() + below) << "no locations at all";
}

TEST(Directories, EmptyDataFoldersReadAsTheWorkingFolder) {
    const Machine machine;
    machine.make(words("models/ models/a.json filterData/"));
    const QString root = machine.folder.path();
    EXPECT_EQ(Directories::modelDirectory(root), root + QStringLiteral("/models"));
    EXPECT_EQ(Directories::filterDataDirectory(root), QDir::currentPath());
    EXPECT_EQ(Directories::modelDirectory(root + QStringLiteral("/elsewhere")), QDir::currentPath());
}

TEST(Directories, TheProcessFindsItself) {
    EXPECT_TRUE(QDir(Directories::Environment::ofProcess().programFolder).exists(QStringLiteral("test_app")));
}

} // namespace
