#pragma once

#include <QDateTime>
#include <QMessageLogContext>
#include <QString>

/// How a message becomes a line. No state, no side effects.
namespace LogFormat {

/// The short name of the type's level, or empty when its rank (debug 0, info 1, warning 2,
/// critical 3, fatal 4) is below the threshold.
QString levelName(QtMsgType type, int threshold);

/// Where the message comes from, or empty when that isn't known.
QString contextText(const QMessageLogContext &context);

struct Line {
    QDateTime time;
    QString elapsed; ///< since the thread's last message
    QString thread;
    QtMsgType type = QtInfoMsg;
    QString level;
    QString text;
    QString context;
};

/// With a line feed at its end.
QString fileLine(const Line &line);
/// With terminal colours, without a line end.
QString colouredLine(const Line &line);
/// Level, text and context alone, without a line end.
QString plainLine(const Line &line);

} // namespace LogFormat
