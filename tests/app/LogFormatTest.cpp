#include "app/LogFormat.h"
#include "system/ElapsedTime.h"

#include <gtest/gtest.h>

namespace {

TEST(LogFormat, LevelsPassTheirThresholds) {
    const struct {
        QtMsgType type;
        const char *name;
        int highest;
    } rows[] = {{QtDebugMsg, "Debug", 0},
                {QtInfoMsg, "Info", 1},
                {QtWarningMsg, "Warn", 2},
                {QtCriticalMsg, "Error", 3},
                {QtFatalMsg, "Fatal", 4}};
    for (const auto &row : rows) {
        for (int threshold = 0; threshold <= 5; ++threshold) {
            const QString expected = threshold <= row.highest ? QString::fromLatin1(row.name) : QString();
            EXPECT_EQ(LogFormat::levelName(row.type, threshold), expected) << row.name << " at " << threshold;
        }
    }
}

TEST(LogFormat, Lines) {
    const QMessageLogContext nowhere;
    const QMessageLogContext document("qrc:/a.qml", 12, "onClicked", "qml");
    const QMessageLogContext noFunction("qrc:/a.qml", 12, nullptr, "qml");
    EXPECT_EQ(LogFormat::contextText(nowhere), QString());
    EXPECT_EQ(LogFormat::contextText(noFunction), QStringLiteral(" | (qrc:/a.qml:12)"));

    // Text that looks like a place holder stays as it is.
    const LogFormat::Line line{.time = QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2, 40)),
                               .elapsed = QStringLiteral("3 ms"),
                               .thread = QStringLiteral("7f0a"),
                               .type = QtWarningMsg,
                               .level = QStringLiteral("Warn"),
                               .text = QStringLiteral("50%1 done"),
                               .context = LogFormat::contextText(document)};
    EXPECT_EQ(LogFormat::fileLine(line),
              QStringLiteral(
                  "[2024-03-09 07:05:02.040, 3 ms] [7f0a] Warn | 50%1 done  | (qrc:/a.qml:12, onClicked)\n"));
    EXPECT_EQ(LogFormat::plainLine(line), QStringLiteral("Warn | 50%1 done  | (qrc:/a.qml:12, onClicked)"));
    EXPECT_EQ(
        LogFormat::colouredLine(line),
        QStringLiteral("[\033[38;5;244m2024-03-09 07:05:02.040\033[0m, 3 ms] [7f0a] \033[33mWarn\033[0m | "
                       "50%1 done  | (qrc:/a.qml:12, onClicked)"));
}

TEST(ElapsedTime, ReadsShort) {
    const struct {
        qint64 milliseconds;
        const char *text;
    } rows[] = {
        {-5, "0 ms"},          {999, "999 ms"},        {1000, "1.0 s"},          {59999, "59.9 s"},
        {60000, "1 min 00 s"}, {245000, "4 min 05 s"}, {3599999, "59 min 59 s"}, {7800000, "2 h 10 min"}};
    for (const auto &row : rows)
        EXPECT_EQ(ElapsedTime::toString(row.milliseconds), QString::fromLatin1(row.text));
}

} // namespace
