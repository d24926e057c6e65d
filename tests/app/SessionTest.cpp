#include "app/AppState.h"
#include "app/SessionList.h"
#include "app/SettingsStore.h"
#include "frontends/AppContext.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void put(const QString &path, const QByteArray &content) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

TEST(Session, ListComesBackAsItWasSaved) {
    const QTemporaryDir logs;
    EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << "no list yet";

    AppState state(logs.path(), sessionListName());
    const QStringList files = {u"/a b/\u00fcber.jpg"_s, u"/c.nef"_s};
    state.setProperty("openFiles", files);
    state.saveFileList();
    EXPECT_EQ(readSessionList(logs.path()), files);

    state.setProperty("openFiles", QStringList());
    state.saveFileList();
    EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << "an empty list replaces the last";
}

TEST(Session, ForeignLists) {
    const QTemporaryDir logs;
    const QString path = QDir(logs.path()).filePath(sessionListName());
    put(path, "  /a.jpg \r\n\n/b.jpg");
    EXPECT_EQ(readSessionList(logs.path()), QStringList({u"/a.jpg"_s, QString(), u"/b.jpg"_s}));
    ASSERT_TRUE(QFile::resize(path, qint64(20) << 20));
    EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << "a list no session makes";
    for (const QByteArray &damage :
         {QByteArray("/a.jpg\n\0\0\0\n", 11), QByteArray("/a.jpg\n\xff\xfe/b.jpg\n")}) {
        put(path, damage);
        EXPECT_TRUE(readSessionList(logs.path()).isEmpty()) << damage.toPercentEncoding().toStdString();
    }
}

TEST(SettingsStore, DamagedStoreIsReportedAndKept) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store.conf"_s);
    const auto store = [&path](const QByteArray &content) {
        put(path, content);
        const QSettings settings(path, QSettings::IniFormat);
        reportSettingsStore(settings);
        return settings.value(u"a"_s).toInt();
    };
    EXPECT_EQ(store("[General]\na=1\n"), 1);
    EXPECT_FALSE(QFile::exists(path + u".damaged"_s)) << "nothing is wrong with it";
    const QByteArray broken = "[General]\na=1\n[broken\n\xff\xfe\n";
    for (const QByteArray &damaged : {broken, QByteArray("[General]\na=1\nb=\0\0\n", 19)}) {
        EXPECT_EQ(store(damaged), 1) << "what can be read stands";
        QFile kept(path + u".damaged"_s);
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
    settings.setValue(u"developerMode"_s, true);
    settings.sync();
    const AppContext context(u"/m"_s, root.filePath(u"Logs"_s));
    settings.remove(u"developerMode"_s);
    EXPECT_TRUE(context.isDev());
    EXPECT_EQ(context.appName(), u"app"_s);
    EXPECT_EQ(context.presetsDirectory(), root.filePath(u"Presets"_s));
    EXPECT_TRUE(QDir(context.presetsDirectory()).exists());

    const AppContext again(u"/m"_s, root.filePath(u"Logs"_s));
    EXPECT_FALSE(again.isDev());
    EXPECT_EQ(again.presetsDirectory(), context.presetsDirectory());
    const AppContext lost(QString(), root.filePath(u"no/where/Logs"_s));
    EXPECT_EQ(lost.presetsDirectory(), root.filePath(u"no/where/Presets"_s));
}

} // namespace
