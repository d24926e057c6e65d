#include "Benches.h"
#include "ChildProcess.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr double LargeSeconds = 15;
constexpr double LargeMegabytes = 1000;
constexpr double SteadyMemory = 1.2; // 1,000 files against 100
constexpr double Overlap = 1.0;      // sum of the stages against the time they took together

int row(const char *what, double value, const char *unit, double reference, double over, double limit,
        bool within) {
    std::printf("%-44s %9.2f %-3s %9.2f %-3s %8.2f, bound %g %s\n", what, value, unit, reference, unit, over,
                limit, within ? "" : "OUT OF BOUNDS");
    return within ? 0 : 1;
}

// Smooth areas, edges and noise, so that encoders and filters have something to do.
QImage picture(int width, int height, quint32 seed) {
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < height; ++y) {
        uchar *pixel = image.scanLine(y);
        for (int x = 0; x < width; ++x) {
            seed = seed * 1664525U + 1013904223U;
            const int edge = (x / 97 + y / 61) % 2 == 0 ? 40 : 0;
            for (int c = 0; c < 3; ++c)
                *pixel++ = uchar(40 + 100 * x / width + 50 * y / height + edge + int(seed >> (27 - c) & 15));
        }
    }
    return image;
}

ChildUse enhance(const QStringList &arguments) {
    const QString program = QCoreApplication::applicationDirPath() + u"/orvane-cli"_s;
    return runChild(program, QStringList{u"-v"_s, u"--keep-going"_s} + arguments);
}

bool failed(const ChildUse &use) {
    if (use.exitCode == 0)
        return false;
    std::fprintf(stderr, "cli: orvane-cli ended with %d\n%s", use.exitCode, use.errors.constData());
    return true;
}

struct PlainCopy {
    double seconds = 0;
    double decodedMegabytes = 0; ///< 0: it failed
};

// What no program can do without: decode and encode. The picture is gone afterwards, since a child
// process is charged with the memory of the one that it is forked from.
PlainCopy copyPicture(const QString &from, const QString &to) {
    QElapsedTimer clock;
    clock.start();
    const QImage image(from);
    if (!image.save(to, nullptr, 95))
        return {};
    return {double(clock.elapsed()) / 1000, double(image.width()) * image.height() * 3 / 1e6};
}

int benchLarge(const QString &given, const QTemporaryDir &folder) {
    QString input = given;
    if (input.isEmpty()) {
        input = folder.filePath(u"large.jpg"_s);
        if (!picture(6000, 4000, 1).save(input, nullptr, 95))
            return 2;
    }
    const PlainCopy copy = copyPicture(input, folder.filePath(u"copy.jpg"_s));
    if (copy.decodedMegabytes == 0) {
        std::fprintf(stderr, "cli: cannot copy %s\n", qUtf8Printable(input));
        return 2;
    }
    const ChildUse use =
        enhance({input, u"-o"_s, folder.filePath(u"large-out"_s), u"--noise"_s, u"param1_normalv2=0.5"_s,
                 u"--sharpen"_s, u"param1=0.1"_s, u"param2=0.5"_s});
    if (failed(use))
        return 2;
    return std::max({row("large JPEG, noise and sharpen 50; plain copy", use.seconds, "s", copy.seconds,
                         use.seconds / copy.seconds, LargeSeconds, use.seconds <= LargeSeconds),
                     row("the same, peak memory; one decoded picture", use.peakMegabytes, "MB",
                         copy.decodedMegabytes, use.peakMegabytes / copy.decodedMegabytes, LargeMegabytes,
                         use.peakMegabytes <= LargeMegabytes)});
}

int benchMany(const QTemporaryDir &folder) {
    QStringList files;
    for (quint32 i = 0; i < 1000; ++i) {
        files.append(folder.filePath(u"small%1.jpg"_s.arg(i, 4, 10, QLatin1Char('0'))));
        if (!picture(240, 160, i).save(files.constLast(), nullptr, 90))
            return 2;
    }
    const ChildUse few = enhance(files.mid(0, 100) + QStringList{u"-o"_s, folder.filePath(u"few"_s)});
    const ChildUse many = enhance(files + QStringList{u"-o"_s, folder.filePath(u"many"_s)});
    if (failed(few) || failed(many))
        return 2;
    const qsizetype written = QDir(folder.filePath(u"many"_s)).entryList(QDir::Files).size();
    if (written != files.size()) {
        std::fprintf(stderr, "cli: %lld of 1000 files were written\n", qlonglong(written));
        return 1;
    }
    const double growth = many.peakMegabytes / few.peakMegabytes;
    return row("1,000 small files, peak memory; 100 files", many.peakMegabytes, "MB", few.peakMegabytes,
               growth, SteadyMemory, growth <= SteadyMemory);
}

// Times of a run's steps, in milliseconds, read from its log file.
struct Steps {
    QList<qint64> started;
    QList<qint64> processed;
    QList<qint64> saved;
};

Steps stepsOf(const QByteArray &errors) {
    static const QRegularExpression directory(u"Log directory: (.*\\S)"_s);
    static const QRegularExpression line(u"^\\[([-0-9]+ [0-9:.]+), .*\\[CLI\\] (Loading|Output|Saved)"_s);
    const QDir folder(directory.match(QString::fromUtf8(errors)).captured(1));
    const QStringList logs = folder.entryList({u"*.ovlog"_s}, QDir::Files, QDir::Time);
    QFile log(logs.isEmpty() ? QString() : folder.filePath(logs.constFirst()));
    Steps steps;
    if (!log.open(QFile::ReadOnly))
        return steps;
    while (!log.atEnd()) {
        const auto match = line.match(QString::fromUtf8(log.readLine()));
        if (!match.hasMatch())
            continue;
        const qint64 time =
            QDateTime::fromString(match.captured(1), u"yyyy-MM-dd HH:mm:ss.zzz"_s).toMSecsSinceEpoch();
        const QString step = match.captured(2);
        (step == "Loading"_L1  ? steps.started
         : step == "Output"_L1 ? steps.processed
                               : steps.saved)
            .append(time);
    }
    return steps;
}

// Big PNG files compressed hard take about as long to write as to process.
int benchOverlap(const QTemporaryDir &folder) {
    QStringList files;
    for (quint32 i = 0; i < 6; ++i) {
        files.append(folder.filePath(u"middle%1.png"_s.arg(i)));
        if (!picture(1800, 1200, i).save(files.constLast(), nullptr, 100))
            return 2;
    }
    const ChildUse use =
        enhance(files + QStringList{u"-o"_s, folder.filePath(u"middle"_s), u"--noise"_s, u"-c"_s, u"7"_s});
    if (failed(use))
        return 2;
    const Steps steps = stepsOf(use.errors);
    if (steps.started.size() != files.size() || steps.processed.size() != files.size() ||
        steps.saved.size() != files.size())
        return 2;
    qint64 sum = 0;
    for (qsizetype i = 0; i < files.size(); ++i) {
        const qint64 writerFree = i > 0 ? steps.saved.at(i - 1) : 0;
        sum += steps.processed.at(i) - steps.started.at(i);
        sum += steps.saved.at(i) - std::max(steps.processed.at(i), writerFree);
    }
    const double total = double(steps.saved.constLast() - steps.started.constFirst()) / 1000;
    const double ratio = double(sum) / 1000 / total;
    return row("steps of 6 files one by one; as they ran", double(sum) / 1000, "s", total, ratio, Overlap,
               ratio > Overlap);
}

} // namespace

int benchCli(const QStringList &arguments) {
    const QTemporaryDir folder;
    if (!folder.isValid() || !canRunChildren()) {
        std::fprintf(stderr, "cli: no temporary folder, or no way to measure another process here\n");
        return 2;
    }
    std::printf("%-44s %13s %13s %8s\n", "what; reference", "value", "reference", "ratio");
    return std::max({benchLarge(arguments.value(0), folder), benchMany(folder), benchOverlap(folder)});
}
