#include "imageio/ImageWriting.h"

#include "imageio/AtomicFile.h"
#include "imageio/CropRotate.h"
#include "imageio/FileProbe.h"
#include "imageio/MetadataCarrier.h"
#include "imageio/PixelEncoder.h"
#include "imageio/Text.h"
#include "imageio/WrittenFileCheck.h"

#include <QDebug>
#include <QFileInfo>

namespace imageio {

namespace {

constexpr double DefaultResolution = 72;
constexpr double EncodingShare = 0.85;

/// The reason the system gives, where it refuses to take more data, else that of the writer.
QString failure(const AtomicFile &file, const QString &reason) {
    const QString error = file.systemError();
    return error.isEmpty() ? reason : error;
}

RunControl share(const RunControl &control, double from, double to) {
    RunControl part;
    part.stop = control.stop;
    part.progress = [&control, from, to](double fraction, const QString &stage) {
        control.report(from + fraction * (to - from), stage);
    };
    return part;
}

QString fillFile(const ImageData &image, const EncodePlan &plan, const WriteRequest &request,
                 const Resolution &resolution, const QString &path, const RunControl &control,
                 bool &cancelled) {
    const Encoded encoded = encodePixels(image, plan, path, share(control, 0, EncodingShare));
    cancelled = encoded.cancelled;
    if (cancelled || !encoded.error.isEmpty())
        return encoded.error;
    control.report(EncodingShare, QStringLiteral("Writing metadata"));
    MetadataCorrections corrections;
    corrections.size = {image.width(), image.height()};
    corrections.resolution = resolution.value;
    corrections.resolutionUnit = resolution.unit;
    corrections.icc =
        plan.kind == OutputKind::Bmp || plan.kind == OutputKind::Dng ? QByteArray() : image.iccProfile();
    const QVariant raw =
        request.imageData.value(QStringLiteral("metadata")).toMap().value(QStringLiteral("isRaw"));
    corrections.sourceIsRaw =
        raw.isValid() ? raw.toBool() : probeFile(request.inputPath).kind == FileKind::Raw;
    const QString error = carryMetadata(request.inputPath, path, plan.kind, corrections);
    if (!error.isEmpty())
        return error;
    cancelled = control.stopped();
    control.report(0.95, QStringLiteral("Checking"));
    return cancelled ? QString() : checkWrittenFile(path, image, plan);
}

} // namespace

Resolution resolutionOf(const QVariantMap &imageData) {
    Resolution resolution;
    const double value = imageData.value(QStringLiteral("resolution")).toDouble();
    if (value >= 1 && value <= 1e6)
        resolution.value = value;
    if (imageData.value(QStringLiteral("resolutionUnit")).toInt() == 3)
        resolution.unit = 3;
    return resolution;
}

WriteResult writePicture(const WriteRequest &request, const RunControl &control) {
    WriteResult result;
    if (!request.image || request.image->isNull()) {
        result.error = Text::tr("There is no picture to save.");
        return result;
    }
    if (request.outputPath.isEmpty()) {
        result.error = Text::tr("No output file was named.");
        return result;
    }
    if (control.stopped()) {
        result.cancelled = true;
        return result;
    }
    const ImageRef image = cropRotate(request.image, request.imageData);
    if (!image) {
        result.error = Text::tr("There is not enough memory to crop the picture.");
        return result;
    }
    result.outputPath = writablePath(request.outputPath);
    EncodePlan plan =
        planEncoding(*image, formatExtension(result.outputPath, request.inputPath), request.options);
    result.error = plan.error;
    if (!result.error.isEmpty())
        return result;
    const Resolution resolution = resolutionOf(request.imageData);
    plan.resolution = resolution.value > 0 ? resolution.value : DefaultResolution;
    plan.resolutionUnit = resolution.unit;

    AtomicFile file;
    result.error = file.begin(result.outputPath);
    if (!result.error.isEmpty())
        return result;
    result.error =
        fillFile(*image, plan, request, resolution, file.temporaryPath(), control, result.cancelled);
    if (!result.error.isEmpty())
        result.error = failure(file, result.error);
    if (result.cancelled || !result.error.isEmpty())
        return result;
    result.fileSize = QFileInfo(file.temporaryPath()).size();
    result.error = file.commit();
    if (!result.error.isEmpty())
        result.fileSize = 0;
    else
        control.report(1, QStringLiteral("Done"));
    return result;
}

} // namespace imageio
