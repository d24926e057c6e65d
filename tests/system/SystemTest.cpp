#include "system/OSUtils.h"
#include "system/SystemInfo.h"
#include "system/TempFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QSysInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(System, MachineIdIsStableAndDisguised) {
    const QString id = aiutils::SystemInfo::GetInstance(true).getMachineId();
    EXPECT_EQ(id.size(), 32);
    EXPECT_EQ(OSUtils::machineId(), id);
    const QString machine = QString::fromLatin1(QSysInfo::machineUniqueId());
    EXPECT_TRUE(machine.isEmpty() || !id.contains(machine));
}

TEST(System, MissingFileIsAnnounced) {
    OSUtils utils;
    QSignalSpy missing(&utils, &OSUtils::fileMissing);
    EXPECT_TRUE(OSUtils::fileExists(QDir::tempPath()));
    EXPECT_FALSE(OSUtils::fileExists(u"/no/such/file"_s));
    EXPECT_EQ(missing.size(), 0) << "a question is no attempt to show the file";
    utils.showFileInGraphicalShell(u"/no/such/file"_s);
    EXPECT_EQ(missing.size(), 1);
}

TEST(System, TemporaryFoldersAreTheUsersOwn) {
    ASSERT_TRUE(TempFolders::make(TempFolders::thumbnails()));
    EXPECT_FALSE(QFileInfo(TempFolders::root()).permission(QFile::ReadOther));
    OSUtils::clearTempFiles();
    EXPECT_FALSE(QFileInfo::exists(TempFolders::root()));
    ASSERT_TRUE(QFile::link(QDir::tempPath(), TempFolders::root()));
    EXPECT_FALSE(TempFolders::make(TempFolders::thumbnails())) << "somebody's link is not followed";
    EXPECT_TRUE(QFile::remove(TempFolders::root()));
}

} // namespace
