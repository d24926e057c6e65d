#include "imageio/SizeEstimate.h"

#include "imageio/PixelEncoder.h"
#include "imageio/SupportedFormats.h"
#include "imageio/Text.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>

namespace imageio {

namespace {

constexpr int BandRows = 64;
constexpr int Bands = 8;
/// Bands start at multiples of the largest block that encoders cut pictures into.
constexpr int Alignment = 16;

/// The picture itself when it is small, else bands of its rows one below the other.
ImageRef sampleOf(const ImageRef &image) {
    if (image->height() <= 2 * Bands * BandRows)
        return image;
    auto sample =
        std::make_shared<ImageData>(image->width(), Bands * BandRows, image->channels(), image->type());
    if (sample->isNull())
        return nullptr;
    sample->setIccProfile(image->iccProfile());
    for (int band = 0; band < Bands; ++band) {
        const auto even = int(std::int64_t(band) * (image->height() - BandRows) / (Bands - 1));
        const int from = even / Alignment * Alignment;
        std::memcpy(sample->row(band * BandRows), image->row(from), image->rowBytes() * BandRows);
    }
    return sample;
}

qint64 encodedSize(const ImageData &image, const EncodePlan &plan, const RunControl &control,
                   WriteResult &result) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sample"));
    const Encoded encoded = encodePixels(image, plan, path, control);
    result.cancelled = encoded.cancelled;
    result.error = encoded.error;
    return QFileInfo(path).size();
}

} // namespace

WriteResult estimateSize(const WriteRequest &request, const QString &extension, const RunControl &control) {
    WriteResult result;
    if (!request.image || request.image->isNull()) {
        result.error = Text::tr("There is no picture to estimate.");
        return result;
    }
    const QString lower = extension.toLower();
    const QString written = kindOfExtension(lower) == FileKind::Heif ? QStringLiteral("tif") : lower;
    const EncodePlan plan = planEncoding(*request.image, written, request.options);
    result.error = plan.error;
    if (!result.error.isEmpty())
        return result;
    const ImageRef sample = sampleOf(request.image);
    if (!sample) {
        result.error = Text::tr("There is not enough memory for an estimate.");
        return result;
    }
    const qint64 size = encodedSize(*sample, plan, control, result);
    if (result.cancelled || !result.error.isEmpty())
        return result;
    const qint64 profile = std::min<qint64>(size, request.image->iccProfile().size());
    result.fileSize = profile + (size - profile) * request.image->height() / sample->height();
    return result;
}

} // namespace imageio
