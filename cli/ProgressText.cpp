#include "cli/ProgressText.h"

#include <QFileInfo>
#include <QList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// Blocks that terminals draw two cells wide (East Asian Width W and F, and pictographs).
constexpr Range wideRanges[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23F3},   {0x25FD, 0x25FE},
    {0x2614, 0x2615},   {0x2648, 0x2653},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},
    {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},   {0x274C, 0x274C},   {0x2753, 0x2757},
    {0x2795, 0x2797},   {0x27B0, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B55},   {0x2E80, 0x303E},
    {0x3041, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE10, 0xFE19},
    {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},   {0x16FE0, 0x18D08}, {0x1AFF0, 0x1B2FB},
    {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F19A}, {0x1F200, 0x1F320}, {0x1F32D, 0x1FAFF},
    {0x20000, 0x3FFFD}};

int columnsOf(char32_t c) {
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    const auto isIn = [c](const Range &r) { return c >= r.first && c <= r.last; };
    return std::any_of(std::begin(wideRanges), std::end(wideRanges), isIn) ? 2 : 1;
}

QString printable(const QString &text) {
    QString result;
    for (const char32_t c : text.toUcs4()) {
        const QChar::Category category = QChar::category(c);
        const bool isPrintable = category != QChar::Other_Control && category != QChar::Other_Format &&
                                 category != QChar::Other_Surrogate && category != QChar::Separator_Line &&
                                 category != QChar::Separator_Paragraph;
        if (isPrintable)
            result += QStringView(QChar::fromUcs4(c));
        else
            result += u'?';
    }
    return result;
}

// As much of the front (or the back) as fits, combining marks kept with their letter.
QString front(const QList<uint> &characters, int columns) {
    qsizetype n = 0;
    for (int used = 0; n < characters.size(); ++n) {
        used += columnsOf(char32_t(characters.at(n)));
        if (used > columns)
            break;
    }
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData()), n);
}

QString back(const QList<uint> &characters, int columns) {
    qsizetype from = characters.size();
    for (int used = 0; from > 0; --from) {
        used += columnsOf(char32_t(characters.at(from - 1)));
        if (used > columns)
            break;
    }
    while (from < characters.size() && columnsOf(char32_t(characters.at(from))) == 0)
        ++from;
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData() + from),
                             characters.size() - from);
}

QString shortened(const QString &name, int columns) {
    if (columnsOf(name) <= columns)
        return name;
    if (columns < 1)
        return {};
    const QList<uint> characters = name.toUcs4();
    const int tail = (columns - 1) / 2;
    return front(characters, columns - 1 - tail) + u'…' + back(characters, tail);
}

QString timeText(qint64 seconds) {
    const auto two = [](qint64 n) { return u"%1"_s.arg(n, 2, 10, QLatin1Char('0')); };
    if (seconds >= 3600)
        return u"%1:%2:%3 left"_s.arg(seconds / 3600).arg(two(seconds / 60 % 60), two(seconds % 60));
    return u"%1:%2 left"_s.arg(seconds / 60).arg(two(seconds % 60));
}

} // namespace

int columnsOf(const QString &text) {
    int columns = 0;
    for (const char32_t c : text.toUcs4())
        columns += columnsOf(c);
    return columns;
}

QString progressText(const BatchProgress &progress, int columns) {
    const QString count = u"%1/%2"_s.arg(progress.file).arg(progress.total);
    const QString name = printable(QFileInfo(progress.path).fileName());
    const QString percent = progress.fraction < 0
                                ? QString()
                                : u" %1 %"_s.arg(int(std::clamp(progress.fraction, 0.0, 1.0) * 100));
    const QString stage = progress.stage.isEmpty() ? QString() : u"  "_s + printable(progress.stage);
    const QString time = progress.secondsLeft ? u"  "_s + timeText(*progress.secondsLeft) : QString();

    constexpr int shortestName = 12;
    const int wanted = std::min(columnsOf(name), shortestName);
    for (const QString &tail : {stage + percent + time, stage + percent, percent}) {
        const int room = columns - columnsOf(count) - 1 - columnsOf(tail);
        if (room >= wanted)
            return count + u' ' + shortened(name, room) + tail;
    }
    return shortened(count + u' ' + name, columns);
}

std::optional<qint64> estimateSecondsLeft(double elapsed, double done, double total) {
    if (elapsed < 2 || done < 0.02 || done > total)
        return std::nullopt;
    return qint64(std::ceil(elapsed / done * (total - done)));
}
