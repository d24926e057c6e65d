#include "app/AppState.h"
#include "app/SessionList.h"
#include "app/SettingsStore.h"
#include "frontends/AppContext.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(Session, ListComesBackAsItWasSaved) {
    const QTemporaryDir logs;
    EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << "no list yet";

    AppState state(logs.path(), sessionListName());
    const QStringList files = {QStringLiteral("/a b/\u00fcber.jpg"), QStringLiteral("/c.nef")};
    state.setProperty("openFiles", files);
    state.saveFileList();
    EXPECT_EQ(readSessionList(logs.path()), files);

    state.setProperty("openFiles", QStringList());
    state.saveFileList();
    EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << "an empty list replaces the last";
}

TEST(Session, ForeignLists) {
    const QTemporaryDir logs;
    QFile file(QDir(logs.path()).filePath(sessionListName()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("  /a.jpg \r\n\n/b.jpg");
    file.close();
    EXPECT_EQ(readSessionList(logs.path()),
              QStringList({QStringLiteral("/a.jpg"), QString(), QStringLiteral("/b.jpg")}));
    ASSERT_TRUE(file.resize(qint64(20) << 20));
    EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << "a list no session makes";
    for (const QByteArray &damage :
         {QByteArray("/a.jpg\n\0\0\0\n", 11), QByteArray("/a.jpg\n\xff\xfe/b.jpg\n")}) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damage);
        file.close();
        EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << damage.toPercentEncoding().toStdString();
    }
}

TEST(SettingsStore, DamagedStoreIsReportedAndKept) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.conf"));
    const auto store = [&path](const QByteArray &content) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        const QSettings settings(path, QSettings::IniFormat);
        reportSettingsStore(settings);
        return settings.value(QStringLiteral("a")).toInt();
    };
    EXPECT_EQ(store("[General]\na=1\n"), 1);
    EXPECT_FALSE(QFile::exists(path + QStringLiteral(".damaged"))) << "nothing is wrong with it";
    const QByteArray broken = "[General]\na=1\n[broken\n\xff\xfe\n";
    for (const QByteArray &damaged : {broken, QByteArray("[General]\na=1\nb=\0\0\n", 19)}) {
        EXPECT_EQ(store(damaged), 1) << "what can be read stands";
        QFile kept(path + QStringLiteral(".damaged"));
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
        EXPECT_EQ(kept.readAll(), damaged);
    }
}

TEST(Session, ExportingTellsOnlyOfChanges) {
    AppState state{QString(), QString()};
    const QSignalSpy spy(&state, &AppState::isExportingChanged);
    state.setIsExporting(true);
    state.setIsExporting(true);
    state.setIsExporting(false);
    EXPECT_EQ(spy.count(), 2);
}

TEST(AppContext, FoldersAndTheSettingReadOnce) {
    const QTemporaryDir root;
    QSettings settings;
    settings.setValue(QStringLiteral("developerMode"), true);
    settings.sync();
    const AppContext context(QStringLiteral("/m"), root.filePath(QStringLiteral("Logs")));
    settings.remove(QStringLiteral("developerMode"));
    EXPECT_TRUE(context.isDev());
    EXPECT_EQ(context.appName(), QStringLiteral("app"));
    EXPECT_EQ(context.presetsDirectory(), root.filePath(QStringLiteral("Presets")));
    EXPECT_TRUE(QDir(context.presetsDirectory()).exists());

    const AppContext again(QStringLiteral("/m"), root.filePath(QStringLiteral("Logs")));
    EXPECT_FALSE(again.isDev());
    EXPECT_EQ(again.presetsDirectory(), context.presetsDirectory());
    const AppContext lost(QString(), root.filePath(QStringLiteral("no/where/Logs")));
    EXPECT_EQ(lost.presetsDirectory(), root.filePath(QStringLiteral("no/where/Presets")));
}

} // namespace
