#pragma once

#include "imageio/JpegDecoder.h"

namespace imageio {

/// Decodes PNG, TIFF, WebP, BMP, HEIC and AVIF through the image library. Integer depths of up to
/// 8 bits become 8, all others 16. `icc` is the embedded profile, which the
/// image library does not get to see.
Decoded decodePixels(const QString &path, const FileFacts &facts, const QByteArray &icc,
                     const RunControl &control);

} // namespace imageio
