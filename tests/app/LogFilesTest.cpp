#include "app/LogFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(LogFiles, PruningKeepsTheTenNewest) {
    for (const int present : {0, 10, 11, 14}) {
        SCOPED_TRACE(present);
        const QTemporaryDir folder;
        // The names run against the ages, so that only the time can tell which are old.
        const QDateTime now = QDateTime::currentDateTime();
        for (int age = 0; age < present; ++age) {
            QFile file(folder.filePath(u"%1.ovlog"_s.arg(age, 2, 10, QLatin1Char('0'))));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            ASSERT_TRUE(file.setFileTime(now.addSecs(-60 * age), QFileDevice::FileModificationTime));
        }
        QFile other(folder.filePath(u"lastSessionFiles.txt"_s));
        ASSERT_TRUE(other.open(QIODevice::WriteOnly));
        LogFiles::prune(QDir(folder.path()));
        const QStringList left = QDir(folder.path()).entryList({u"*.ovlog"_s}, QDir::Files, QDir::Name);
        ASSERT_EQ(left.size(), std::min(present, 10));
        for (qsizetype age = 0; age < left.size(); ++age)
            EXPECT_EQ(left.at(age), u"%1.ovlog"_s.arg(age, 2, 10, QLatin1Char('0')));
        EXPECT_TRUE(other.exists());
    }
}

TEST(LogFiles, NamesOfOneSecondDiffer) {
    const QTemporaryDir folder;
    const QDateTime time(QDate(2024, 3, 9), QTime(17, 5, 2));
    for (const char *name :
         {"2024-03-09-17-05-2.ovlog", "2024-03-09-17-05-2-1.ovlog", "2024-03-09-17-05-2-2.ovlog"}) {
        QFile file;
        LogFiles::openNew(file, QDir(folder.path()), time);
        EXPECT_TRUE(file.isOpen());
        EXPECT_EQ(QFileInfo(file).fileName(), QString::fromLatin1(name));
    }
    QFile nowhere;
    LogFiles::openNew(nowhere, QDir(folder.filePath(u"missing"_s)), time);
    EXPECT_FALSE(nowhere.isOpen());
}

} // namespace
