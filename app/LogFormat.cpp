#include "app/LogFormat.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto resetCode = "\033[0m"_L1;
constexpr auto timeCode = "\033[38;5;244m"_L1;

QLatin1StringView levelCode(QtMsgType type) {
    switch (type) {
    case QtDebugMsg:
        return "\033[34m"_L1;
    case QtInfoMsg:
        return "\033[32m"_L1;
    case QtWarningMsg:
        return "\033[33m"_L1;
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return "\033[31m"_L1;
}

QString timeText(const LogFormat::Line &line) {
    return line.time.toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s);
}

} // namespace

namespace LogFormat {

QString levelName(QtMsgType type, int threshold) {
    switch (type) {
    case QtDebugMsg:
        return threshold <= 0 ? u"Debug"_s : QString();
    case QtInfoMsg:
        return threshold <= 1 ? u"Info"_s : QString();
    case QtWarningMsg:
        return threshold <= 2 ? u"Warn"_s : QString();
    case QtCriticalMsg:
        return threshold <= 3 ? u"Error"_s : QString();
    case QtFatalMsg:
        return threshold <= 4 ? u"Fatal"_s : QString();
    }
    return {};
}

QString contextText(const QMessageLogContext &context) {
    if (!context.file)
        return {};
    QString text = " | ("_L1 + QString::fromUtf8(context.file) + ':'_L1 + QString::number(context.line);
    if (context.function)
        text += ", "_L1 + QString::fromUtf8(context.function);
    return text + ')'_L1;
}

QString fileLine(const Line &line) {
    return u"[%1, %2] [%3] %4 | %5 %6\n"_s.arg(timeText(line), line.elapsed, line.thread, line.level,
                                               line.text, line.context);
}

QString colouredLine(const Line &line) {
    const QString time = u"[%1%2%3, %4]"_s.arg(timeCode, timeText(line), resetCode, line.elapsed);
    const QString level = u"%1%2%3"_s.arg(levelCode(line.type), line.level, resetCode);
    return u"%1 [%2] %3 | %4 %5"_s.arg(time, line.thread, level, line.text, line.context);
}

QString plainLine(const Line &line) {
    return u"%1 | %2 %3"_s.arg(line.level, line.text, line.context);
}

} // namespace LogFormat
