#include "WindowRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <vector>

using namespace Qt::StringLiterals;

/// Files that can't be read, are none, or go while they wait in the list: each is named, the others open.
TEST_F(WindowRun, UnusableFilesAreReportedAndTheRestOpens) {
    const QString broken = file(u"broken.jpg"_s, "\xff\xd8\xff\xe0 this is no picture");
    const QString text = file(u"notes.txt"_s, "no picture at all");
    const QString inFolder = picture(u"folder/deep/inside.png"_s, 120, 90);
    file(u"folder/notes.txt"_s, "passed over in silence");
    const QString vanishing = picture(u"vanishing.png"_s, 60, 60);
    const QString good = picture(u"good.png"_s, 300, 200);
    const QString missing = below(u"missing.jpg"_s);
    // Every read of it fails, also for root, whom no permission stops.
    const QString unreadable = below(u"unreadable.jpg"_s);
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, unreadable));

    start({missing, unreadable, broken, text, below(u"folder"_s), vanishing, good});
    EXPECT_TRUE(waitForLog("Could not load image: " + unreadable.toUtf8()));
    EXPECT_TRUE(waitForLog("Could not load image: " + broken.toUtf8()));
    ASSERT_TRUE(waitForLog("Loading file: " + inFolder.toUtf8()));
    EXPECT_TRUE(waitForLog("Unsupported files:"));
    EXPECT_TRUE(log().contains(missing.toUtf8()) && log().contains(text.toUtf8()));
    EXPECT_TRUE(waitForSession({inFolder, vanishing, good}));

    ASSERT_TRUE(QFile::remove(vanishing));
    EXPECT_TRUE(pressUntil({u"Escape"_s, u"Right"_s},
                           [&] { return log().contains("Could not load image: " + vanishing.toUtf8()); }));
    EXPECT_TRUE(waitForSession({inFolder, good}));
    EXPECT_TRUE(waitForLog("Loading file: " + good.toUtf8()));
    EXPECT_EQ(pressUntilEnd({u"alt+F4"_s, u"Return"_s, u"Escape"_s}), 0);
    EXPECT_EQ(setting(u"recentFiles"_s).toStringList(), QStringList({good, inFolder}))
        << "what failed is not offered";
}

TEST_F(WindowRun, ThousandsOfFilesOpenAtOnce) {
    constexpr int Count = 5000;
    const QFileInfo one(picture(u"tiny.png"_s, 24, 24));
    const QString folder = below(u"many"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    QStringList files;
    for (int i = 0; i < Count; ++i) {
        files << u"%1/%2.png"_s.arg(folder, QString::number(i).rightJustified(5, u'0'));
        ASSERT_TRUE(QFile::link(one.filePath(), files.last()));
    }
    start({folder});
    ASSERT_TRUE(waitForLog("Loading file: " + files[0].toUtf8()));
    EXPECT_TRUE(waitForSession(files));
    EXPECT_TRUE(
        pressUntil({u"Right"_s}, [&] { return log().contains("Loading file: " + files[1].toUtf8()); }));
    EXPECT_TRUE(pressUntil({u"ctrl+w"_s}, [&] { return session().size() < Count; })) << "one image closes";
    EXPECT_LT(longestBlock(), BlockedMs);
    EXPECT_EQ(pressUntilEnd({u"alt+F4"_s, u"Return"_s}), 0);
}

/// What the program has written itself and finds spoilt at its next start.
TEST_F(WindowRun, SpoiltStateIsPassedOver) {
    const QString good = picture(u"good.png"_s, 300, 200);
    QByteArray noise;
    for (int i = 0; i < 70000; ++i)
        noise += char(i * 7919 >> 3);
    const QByteArray wrongTypes = "[General]\n"
                                  "windowGeometry=@Rect(9999999 -9999999 0 -3)\nwindowVisibility=sideways\n"
                                  "recentFiles=@Variant(\\0\\0\\0\\x7f)\ncolorScheme=@ByteArray(\\xff\\x1)\n"
                                  "autopilotRecommendFilters=maybe\nfaceParts=3\nmaskOverlayColor=none\n"
                                  "deviceId=fast\noutputFolderList=browse\ndragState=here\nlastViewMode=99\n"
                                  "autopilotSubjectType=@Invalid()\nlastAppVersion=\\x0\n";
    struct Row {
        const char *name;
        QString path;
        QByteArray content;
        QStringList arguments;
    };
    for (const Row &row : std::vector<Row>{
             {"settings: noise", settingsFile(), noise, {good}},
             {"settings: other types", settingsFile(), wrongTypes, {good}},
             {"session list: noise", sessionFile(), noise + '\n' + good.toUtf8(), {u"--recover"_s, good}},
         }) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(row.path).path()));
        QFile spoilt(row.path);
        ASSERT_TRUE(spoilt.open(QFile::WriteOnly) && spoilt.write(row.content) == row.content.size());
        spoilt.close();
        start(row.arguments);
        EXPECT_TRUE(waitForLog("Main window loaded"));
        ASSERT_TRUE(waitForLog("Loading file: " + good.toUtf8()));
        EXPECT_TRUE(waitForSession({good}));
        EXPECT_EQ(pressUntilEnd({u"alt+F4"_s, u"Return"_s, u"Escape"_s}), 0);
        ASSERT_TRUE(QFile::remove(settingsFile()));
    }
}
