#pragma once

#include "contracts/ImageData.h"

#include <QVariantMap>

namespace imageio {

enum class OutputKind { Jpeg, Png, Tiff, WebP, Bmp, Dng };

/// How one picture is to be stored.
struct EncodePlan {
    QString error;
    OutputKind kind = OutputKind::Jpeg;
    int bits = 8;
    int channels = 3;
    bool compressed = false; ///< DNG only
    QVariantMap attributes;  ///< for the image library, by its names
    double resolution = 72;
    int resolutionUnit = 2;
};

/// By lower-case extension of the output. `options` may name "oiio:BitsPerSample" (0 keeps the
/// depth of the image), compression and other attributes of the image library; those that no
/// writer knows are left out.
EncodePlan planEncoding(const ImageData &image, const QString &extension, const QVariantMap &options);

/// Where a picture asked for at `outputPath` is really written: formats that can only be read are
/// replaced by a TIFF beside, under a free name.
QString writablePath(const QString &outputPath);

/// The extension that decides the format; an output without one takes that of the input's content.
QString formatExtension(const QString &outputPath, const QString &inputPath);

} // namespace imageio
