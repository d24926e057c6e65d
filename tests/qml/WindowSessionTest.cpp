#include "WindowRun.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

/// What was open when the program was killed is open again, less what has gone since; lock and socket of the
/// dead process stop nobody.
TEST_F(WindowRun, KilledSessionIsReopened) {
    const QString one = picture(u"one.png"_s, 300, 200);
    const QString two = picture(u"zwei ä.png"_s, 200, 300);
    const QString gone = picture(u"gone.png"_s, 100, 100);
    start({one, gone, two});
    ASSERT_TRUE(waitForLog("Loading file: " + one.toUtf8()));
    ASSERT_TRUE(waitForSession({one, gone, two}));
    kill();
    ASSERT_TRUE(QFile::remove(gone));

    start({u"--recover"_s});
    ASSERT_TRUE(waitForLog("Loading file: " + one.toUtf8()));
    EXPECT_TRUE(waitForSession({one, two}));
    EXPECT_FALSE(log().contains("Not a server instance"));

    const QString three = picture(u"three.png"_s, 90, 90);
    const auto another = startAnother({three});
    EXPECT_TRUE(another->waitForFinished(60000));
    EXPECT_EQ(another->exitCode(), 0);
    EXPECT_TRUE(waitForSession({one, two, three}));

    ASSERT_TRUE(pressUntil({u"Escape"_s, u"ctrl+w"_s}, [&] { return session().isEmpty(); }));
    const QString four = picture(u"four.png"_s, 80, 90);
    EXPECT_TRUE(startAnother({four})->waitForFinished(60000));
    EXPECT_TRUE(waitForLog("Loading file: " + four.toUtf8())) << "after the last image has gone";
}

/// Whichever is first serves; the other one hands its file over and ends without a window.
TEST_F(WindowRun, StartsInTheSameSecondShareOneWindow) {
    const QString one = picture(u"one.png"_s, 300, 200);
    const QString two = picture(u"two.png"_s, 200, 300);
    start({one});
    const auto another = startAnother({two});
    waitUntil([&] { return !isRunning() || another->waitForFinished(10); });
    const bool firstServes = isRunning();
    ASSERT_NE(firstServes, another->state() == QProcess::Running) << "one window";
    EXPECT_EQ(firstServes ? another->exitCode() : waitForEnd(), 0);
    const QStringList together = firstServes ? QStringList{one, two} : QStringList{two, one};
    for (const QDeadlineTimer deadline(60000); session() != together && !deadline.hasExpired();)
        QThread::msleep(100);
    EXPECT_EQ(session().join(u'\n').toStdString(), together.join(u'\n').toStdString());
    another->kill();
    another->waitForFinished(60000);
}
