#include "app/LogFormat.h"
#include "system/ElapsedTime.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(LogFormat, LevelsPassTheirThresholds) {
    int highest = 0;
    for (const auto &[type, name] :
         {std::pair(QtDebugMsg, "Debug"), std::pair(QtInfoMsg, "Info"), std::pair(QtWarningMsg, "Warn"),
          std::pair(QtCriticalMsg, "Error"), std::pair(QtFatalMsg, "Fatal")}) {
        for (int threshold = 0; threshold <= 5; ++threshold) {
            const QString expected = threshold <= highest ? QString::fromLatin1(name) : QString();
            EXPECT_EQ(LogFormat::levelName(type, threshold), expected) << name << " at " << threshold;
        }
        ++highest;
    }
}

TEST(LogFormat, Lines) {
    const QMessageLogContext nowhere;
    const QMessageLogContext document("qrc:/a.qml", 12, "onClicked", "qml");
    const QMessageLogContext noFunction("qrc:/a.qml", 12, nullptr, "qml");
    EXPECT_EQ(LogFormat::contextText(nowhere), QString());
    EXPECT_EQ(LogFormat::contextText(noFunction), u" | (qrc:/a.qml:12)"_s);

    // Text that looks like a place holder stays as it is.
    const LogFormat::Line line{.time = QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2, 40)),
                               .elapsed = u"3 ms"_s,
                               .thread = u"7f0a"_s,
                               .type = QtWarningMsg,
                               .level = u"Warn"_s,
                               .text = u"50%1 done"_s,
                               .context = LogFormat::contextText(document)};
    const QString rest = u" | 50%1 done  | (qrc:/a.qml:12, onClicked)"_s;
    EXPECT_EQ(LogFormat::fileLine(line), u"[2024-03-09 07:05:02.040, 3 ms] [7f0a] Warn"_s + rest + u'\n');
    EXPECT_EQ(LogFormat::plainLine(line), u"Warn"_s + rest);
    EXPECT_EQ(LogFormat::colouredLine(line),
              u"[\033[38;5;244m2024-03-09 07:05:02.040\033[0m, 3 ms] [7f0a] \033[33mWarn\033[0m"_s + rest);
}

TEST(ElapsedTime, ReadsShort) {
    for (const auto &[milliseconds, text] :
         {std::pair(-5, "0 ms"), std::pair(999, "999 ms"), std::pair(1000, "1.0 s"),
          std::pair(59999, "59.9 s"), std::pair(60000, "1 min 00 s"), std::pair(245000, "4 min 05 s"),
          std::pair(3599999, "59 min 59 s"), std::pair(7800000, "2 h 10 min")})
        EXPECT_EQ(ElapsedTime::toString(milliseconds).toStdString(), text);
}

} // namespace
