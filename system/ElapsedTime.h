#pragma once

#include <QString>

/// Durations as a reader wants them: "7 ms", "3.2 s", "4 min 05 s", "2 h 10 min".
class ElapsedTime {
public:
    /// Negative durations count as zero.
    static QString toString(qint64 milliseconds);
};
