#include "system/ElapsedTime.h"

using namespace Qt::StringLiterals;

QString ElapsedTime::toString(qint64 milliseconds) {
    if (milliseconds < 1000)
        return u"%1 ms"_s.arg(qMax<qint64>(milliseconds, 0));
    const qint64 tenths = milliseconds / 100;
    if (tenths < 600)
        return u"%1.%2 s"_s.arg(tenths / 10).arg(tenths % 10);
    const qint64 seconds = milliseconds / 1000;
    if (seconds < 3600)
        return u"%1 min %2 s"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, '0'_L1);
    return u"%1 h %2 min"_s.arg(seconds / 3600).arg(seconds / 60 % 60, 2, 10, '0'_L1);
}
