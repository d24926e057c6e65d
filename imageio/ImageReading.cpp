#include "imageio/ImageReading.h"

#include "imageio/ColourProfile.h"
#include "imageio/JpegDecoder.h"
#include "imageio/Orientation.h"
#include "imageio/PixelDecoder.h"
#include "imageio/RawDecoder.h"
#include "imageio/Text.h"
#include "imageio/TiffDecoder.h"
#include "imageio/WebpDecoder.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace imageio {

namespace {

constexpr double DefaultResolution = 72;

/// The greatest shrinking that a JPEG decoder offers and that keeps the longest side long enough.
int shrinkFor(const FileFacts &facts, int leastSide) {
    const qint64 longest = std::max(facts.width, facts.height);
    for (int shrink = 8; leastSide > 0 && shrink > 1; shrink /= 2) {
        if (longest / shrink >= leastSide)
            return shrink;
    }
    return 1;
}

Decoded decode(const QString &path, const Opened &opened, int leastSide, const RunControl &control) {
    switch (opened.facts.kind) {
    case FileKind::Jpeg:
        return decodeJpeg(path, opened.facts, opened.metadata.icc, shrinkFor(opened.facts, leastSide),
                          control);
    case FileKind::Raw:
        return developRaw(path, leastSide > 0, control);
    case FileKind::WebP:
        return decodeWebp(path, opened.facts, opened.metadata.icc, control);
    case FileKind::Tiff:
        if (std::optional<Decoded> usual = decodeTiff(path, opened.facts, opened.metadata.icc, control))
            return *std::move(usual);
        [[fallthrough]];
    default:
        return decodePixels(path, opened.facts, opened.metadata.icc, control);
    }
}

/// A damaged one would keep the picture from being saved.
QByteArray profileOf(const QByteArray &icc, const QString &path) {
    const QByteArray usable = usableProfile(icc);
    if (usable.isEmpty() && !icc.isEmpty())
        qWarning().noquote() << "The colour profile is damaged and was left out:" << path;
    return usable;
}

/// Turned by the decoder already: camera files by the developer, HEIF by its container.
bool standsUpright(FileKind kind) {
    return kind == FileKind::Raw || kind == FileKind::Heif;
}

QVariantMap describe(const Opened &opened) {
    QVariantMap map = opened.metadata.fields;
    map.insert(QStringLiteral("orientation"), opened.metadata.orientation);
    map.insert(QStringLiteral("bitDepth"), opened.bits);
    map.insert(QStringLiteral("isRaw"), opened.facts.kind == FileKind::Raw);
    map.insert(QStringLiteral("format"), kindName(opened.facts.kind));
    const QByteArray icc = opened.image->iccProfile();
    const char *space = isSrgb(icc) ? "sRGB" : (icc == adobeRgbProfile() ? "Adobe RGB" : "embedded profile");
    map.insert(QStringLiteral("colorSpace"), QString::fromLatin1(space));
    return map;
}

} // namespace

Opened openPicture(const QString &path, int leastSide, const RunControl &control) {
    Opened opened;
    opened.facts = probeFile(path);
    opened.error = opened.facts.error;
    if (!opened.error.isEmpty())
        return opened;
    if (opened.facts.nameDisagrees)
        qInfo().noquote() << QStringLiteral("The file's content is %1, whatever its name says: %2")
                                 .arg(kindName(opened.facts.kind), path);
    opened.metadata = readCameraMetadata(path);
    if (!opened.facts.icc.isEmpty())
        opened.metadata.icc = opened.facts.icc;
    opened.metadata.icc = profileOf(opened.metadata.icc, path);
    Decoded decoded = decode(path, opened, leastSide, control);
    opened.cancelled = decoded.cancelled || control.stopped();
    opened.error = opened.cancelled ? QString() : decoded.error;
    if (opened.cancelled || !opened.error.isEmpty())
        return opened;
    opened.bits = decoded.bits;
    // The container's figure is often rounded; EXIF is taken where both mean the same.
    const auto perInch = [](double value, int unit) { return unit == 3 ? value * 2.54 : value; };
    const double known = perInch(opened.metadata.resolution, opened.metadata.resolutionUnit);
    const double stated = perInch(decoded.resolution, decoded.resolutionUnit);
    if (stated > 0 && std::abs(stated / known - 1) > 0.01) {
        opened.metadata.resolution = decoded.resolution;
        opened.metadata.resolutionUnit = decoded.resolutionUnit;
    }
    if (opened.metadata.adobeRgb && opened.facts.kind == FileKind::Jpeg &&
        decoded.image->iccProfile().isEmpty()) {
        qInfo("The camera recorded Adobe RGB without a profile; one was attached.");
        decoded.image->setIccProfile(adobeRgbProfile());
    }
    opened.image = standsUpright(opened.facts.kind)
                       ? std::move(decoded.image)
                       : upright(std::move(decoded.image), opened.metadata.orientation);
    if (!opened.image)
        opened.error = Text::tr("There is not enough memory for this picture.");
    return opened;
}

ReadResult readPicture(const ReadRequest &request, const RunControl &control) {
    ReadResult result;
    Opened opened = openPicture(request.path, 0, control);
    result.cancelled = opened.cancelled;
    result.error = opened.error;
    if (!opened.image)
        return result;
    if (request.applyLensCorrection)
        qInfo("Lens correction is not available; the picture was opened without it.");
    result.metadata = describe(opened);
    result.image = std::move(opened.image);
    const bool known = opened.metadata.resolution > 0;
    result.resolution = known ? opened.metadata.resolution : DefaultResolution;
    result.resolutionUnit = known ? opened.metadata.resolutionUnit : 2;
    return result;
}

QSize pictureSize(const QString &path) {
    const FileFacts facts = probeFile(path);
    if (!facts.error.isEmpty())
        return {};
    if (facts.kind == FileKind::Raw)
        return rawSize(path);
    const QSize stored(int(facts.width), int(facts.height));
    const bool swaps =
        facts.kind == FileKind::Heif ? facts.turned : swapsSides(readCameraMetadata(path).orientation);
    return swaps ? stored.transposed() : stored;
}

} // namespace imageio
