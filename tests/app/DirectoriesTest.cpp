#include "app/Directories.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList words(const char *text) {
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

// A small machine: paths in the rows are below a temporary folder, "" stays "".
struct Machine {
    QTemporaryDir folder;

    // Folders end in "/", others are files.
    explicit Machine(const char *tree) {
        for (const QString &entry : words(tree)) {
            if (entry.endsWith(u'/'))
                QDir().mkpath(folder.filePath(entry));
            else
                EXPECT_TRUE(QFile(folder.filePath(entry)).open(QIODevice::WriteOnly));
        }
    }
    QString path(QAnyStringView below) const {
        return below.isEmpty() ? QString() : folder.filePath(below.toString());
    }
};

TEST(Directories, RootAndLogsFollowWhatLiesAround) {
    const QString below = u"/Orvane Works/Orvane Studio/Logs"_s;
    const struct {
        const char *name, *tree, *registered, *program, *locations, *root, *logs; // "*" is `below`
    } rows[] = {
        {"registered wins over a tree", "set/ tree/bin/ tree/share/orvane-studio/models/", "set/../set",
         "tree/bin", "home shared", "set", "set/Logs"},
        {"program's own folder comes first",
         "tree/bin/models/ tree/bin/filterData/ tree/share/orvane-studio/models/ "
         "tree/share/orvane-studio/filterData/",
         "", "tree/bin", "home shared", "tree/bin", "tree/bin/Logs"},
        {"share beside the program",
         "tree/bin/ tree/share/orvane-studio/models/ tree/share/orvane-studio/filterData/", "", "tree/bin",
         "home shared", "tree/share/orvane-studio", "tree/share/orvane-studio/Logs"},
        {"one of the two is not enough", "tree/bin/models/ tree/share/orvane-studio/filterData/ shared/", "",
         "tree/bin", "home shared", "", "shared*"},
        {"files of those names are no root", "tree/bin/ tree/bin/models tree/bin/filterData shared/", "",
         "tree/bin", "home shared", "", "shared*"},
        {"program unknown", "models/ filterData/ shared/", "", "", "home shared", "", "shared*"},
        {"a single location", "home/", "", "", "home", "", "home*"},
        {"root can't be written", "home/ shared/ set", "set", "", "home shared", "set", "home*"},
        {"shared can't be written", "home/ shared", "", "", "home shared", "", "home*"},
        {"nothing can be written", "home shared", "", "", "home shared", "", "shared*"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const Machine machine(row.tree);
        Directories::Environment environment{.registeredModelDir = machine.path(row.registered),
                                             .programFolder = machine.path(row.program),
                                             .dataLocations = {}};
        for (const QString &location : words(row.locations))
            environment.dataLocations << machine.path(location);
        EXPECT_EQ(Directories::installRoot(environment), machine.path(row.root));
        EXPECT_EQ(Directories::logDirectory(environment),
                  machine.path(QString::fromLatin1(row.logs).replace(u'*', below)));
    }
    EXPECT_EQ(Directories::logDirectory({}), QDir::homePath() + below) << "no locations at all";
}

TEST(Directories, EmptyDataFoldersReadAsTheWorkingFolder) {
    const Machine machine("models/ models/a.json filterData/");
    const QString root = machine.folder.path();
    EXPECT_EQ(Directories::modelDirectory(root), root + u"/models"_s);
    EXPECT_EQ(Directories::filterDataDirectory(root), QDir::currentPath());
    EXPECT_EQ(Directories::modelDirectory(root + u"/elsewhere"_s), QDir::currentPath());
}

TEST(Directories, TheProcessFindsItself) {
    EXPECT_TRUE(QDir(Directories::Environment::ofProcess().programFolder).exists(u"test_app"_s));
}

} // namespace
