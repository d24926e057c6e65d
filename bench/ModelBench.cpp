#include "Benches.h"

#include "model/TControls.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int Images = 10000;
constexpr double OpeningLimit = 500; // milliseconds beyond the reference
constexpr double ControlsLimit = 20; // microseconds
constexpr int Runs = 5;

/// Milliseconds of the best of some runs: what else the machine does only ever adds.
template <typename Work>
double best(Work &&work) {
    double least = 1e9;
    for (int i = 0; i < Runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        least = std::min(least, double(timer.nsecsElapsed()) / 1e6);
    }
    return least;
}

bool makeFiles(const QTemporaryDir &folder, QStringList &paths) {
    for (int i = 0; i < Images; ++i) {
        QFile file(folder.filePath(u"%1.jpg"_s.arg(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write("picture") < 0)
            return false;
        paths.append(file.fileName());
    }
    return true;
}

int row(const char *what, double value, const char *unit, double reference, double limit, double over) {
    const bool within = over <= limit;
    std::printf("%-34s %9.3f %-3s %9.3f %-3s %9.3f of %g %s\n", what, value, unit, reference, unit, over,
                limit, within ? "" : "OUT OF BOUNDS");
    return within ? 0 : 1;
}

int benchOpening() {
    const QTemporaryDir folder;
    QStringList paths;
    if (!folder.isValid() || !makeFiles(folder, paths)) {
        std::fprintf(stderr, "model: cannot write %d files to the temporary folder\n", Images);
        return 2;
    }
    qint64 bytes = 0;
    const double reading = best([&] {
        for (const QString &path : std::as_const(paths))
            bytes += QFile(path).size();
    });
    const double opening = best([&] {
        TControls controls;
        controls.loadImages(paths);
        bytes += controls.size();
    });
    if (bytes == 0)
        return 2;
    return row("open 10,000 images / read sizes", opening, "ms", reading, OpeningLimit, opening - reading);
}

void addFilters(TControls &controls) {
    for (int i = 0; i < 8; ++i) {
        QVariantMap params;
        for (int key = 0; key < 10; ++key)
            params.insert(u"param%1"_s.arg(key), 0.5);
        const QString name = u"Sharpen%1"_s.arg(i);
        controls.setParams(name,
                           {{u"category"_s, u"Sharpen"_s}, {u"enabled"_s, true}, {u"params"_s, params}});
        controls.initializeSubject(name);
    }
}

int benchControls() {
    constexpr int Reads = 20000;
    TControls controls;
    controls.loadImages({u"/picture.jpg"_s});
    addFilters(controls);
    qint64 keys = 0;
    const QVariantMap whole = controls.currentControls();
    // The reference writes as many entries, into one flat map.
    const double flat = best([&] {
        for (int i = 0; i < Reads; ++i) {
            QVariantMap map;
            for (const auto &[name, value] : whole.asKeyValueRange())
                map.insert(name, value);
            keys += map.size();
        }
    });
    const double reading = best([&] {
        for (int i = 0; i < Reads; ++i)
            keys += controls.currentControls().size();
    });
    if (keys == 0)
        return 2;
    const double micro = 1000.0 / Reads;
    return row("read controls, 8 filters / flat map", reading * micro, "us", flat * micro, ControlsLimit,
               reading * micro);
}

} // namespace

int benchModel(const QStringList &) {
    std::printf("%-34s %13s %13s %s\n", "operation / reference", "operation", "reference",
                "against its bound");
    const int opening = benchOpening();
    return std::max(opening, benchControls());
}
