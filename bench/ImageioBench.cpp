#include "Benches.h"

#include "imageio/FileBackend.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

#include <sys/resource.h>

namespace {

constexpr int Width = 6000;
constexpr int Height = 4000;

/// Seconds of copying the picture's bytes once: the reference of this run.
double copySeconds(const ImageData &image) {
    std::vector<std::byte> copy(image.byteCount());
    QElapsedTimer time;
    time.start();
    std::memcpy(copy.data(), image.row(0), copy.size());
    return std::max(1e-9, double(time.nsecsElapsed()) / 1e9);
}

std::shared_ptr<ImageData> picture() {
    auto image = std::make_shared<ImageData>(Width, Height, 3, SampleType::UInt8);
    std::uint32_t random = 1;
    for (int y = 0; y < Height; ++y) {
        std::uint8_t *row = image->samples<std::uint8_t>(y).data();
        for (int i = 0; i < Width * 3; ++i) {
            random = random * 1664525 + 1013904223;
            const double wave = std::sin(i * 0.004) * std::cos(y * 0.007);
            row[i] = std::uint8_t(128 + 90 * wave + int(random >> 28) - 8);
        }
    }
    return image;
}

} // namespace

int benchImageio(const QStringList &) {
    struct Row {
        const char *file;
        QVariantMap options;
        double bound; ///< seconds for writing and reading together
    };
    const QString compression = QStringLiteral("compression");
    const std::vector<Row> rows = {
        {"a.jpg", {{compression, QStringLiteral("jpeg:95")}}, 3},
        {"a.png", {{QStringLiteral("png:compressionLevel"), 2}}, 12},
        {"none.tif", {{compression, QStringLiteral("none")}}, 4},
        {"zip.tif", {{compression, QStringLiteral("zip")}, {QStringLiteral("tiff:zipquality"), 4}}, 12},
        {"a.webp", {}, 12},
        {"a.dng", {}, 15},
    };
    const auto backend = makeFileBackend();
    const auto image = picture();
    const double reference = copySeconds(*image);
    const QTemporaryDir folder;
    int worst = 0;
    std::printf("%-10s %9s %9s %12s %8s\n", "24 MP", "write s", "read s", "x copying", "MB");
    for (const Row &row : rows) {
        const QString path = folder.filePath(QString::fromLatin1(row.file));
        QElapsedTimer time;
        time.start();
        const WriteResult written = backend->write({image, {}, path, {}, row.options}, {});
        const double writing = double(time.nsecsElapsed()) / 1e9;
        time.restart();
        const ReadResult read = backend->read({path, false}, {});
        const double reading = double(time.nsecsElapsed()) / 1e9;
        if (!written.error.isEmpty() || !read.image)
            return 2;
        std::printf("%-10s %9.2f %9.2f %12.0f %8.1f\n", row.file, writing, reading,
                    (writing + reading) / reference, double(written.fileSize) / 1e6);
        if (writing + reading > row.bound)
            worst = 1;
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak memory of the whole run: %ld MB\n", usage.ru_maxrss / 1024);
    return worst;
}
