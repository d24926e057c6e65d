#include "WindowRun.h"

#include <QRect>

using namespace Qt::StringLiterals;

TEST_F(WindowRun, PictureIsReadAnalysedAndProcessed) {
    const QString path = picture(u"photo.jpg"_s, 1600, 1000);
    setting(u"autopilotRecommendFilters"_s, true);
    setting(u"lastAppVersion"_s, u"3.1.2"_s);
    start({path});
    EXPECT_TRUE(waitForLog("Main window loaded"));
    EXPECT_TRUE(waitForLog("Loading file: " + path.toUtf8()));
    EXPECT_TRUE(waitForLog("[PROC] Starting proc"));
    ASSERT_TRUE(waitForLog("[PROC] Proc finished"));
    EXPECT_EQ(log().count("[PROC] Proc finished"), 1) << "one answer for a new picture";
    EXPECT_TRUE(waitUntil([&] { return setting(u"recentFiles"_s).toStringList() == QStringList(path); }));

    EXPECT_TRUE(waitForLog("[WATCH] frames"));
    EXPECT_LT(longestBlock(), BlockedMs);

    // The first close asks, because there are changes; Return gives the answer that closes.
    ASSERT_TRUE(keys({u"alt+F4"_s}));
    EXPECT_TRUE(isRunning());
    EXPECT_EQ(pressUntilEnd({u"Return"_s, u"alt+F4"_s}), 0);
}

TEST_F(WindowRun, WindowStaysWhereItWas) {
    const QRect place(20, 40, 1300, 760);
    setting(u"windowGeometry"_s, QRectF(place));
    for (int i = 0; i < 2; ++i) {
        start({});
        ASSERT_TRUE(waitForLog("Main window loaded"));
        ASSERT_EQ(pressUntilEnd({u"alt+F4"_s}), 0);
        EXPECT_EQ(setting(u"windowGeometry"_s).toRectF(), QRectF(place));
        const QByteArray all = log();
        EXPECT_TRUE(all.contains("Session files log written."));
        EXPECT_LT(all.lastIndexOf("Session files log written."), all.lastIndexOf("Closing the QML engine"))
            << "the session is kept before anything of the interface goes";
    }
}
