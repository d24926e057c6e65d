#pragma once

#include "imageio/JpegDecoder.h"

namespace imageio {

/// Decodes the first picture of a WebP in portions, so that it can be cancelled.
Decoded decodeWebp(const QString &path, const FileFacts &facts, const QByteArray &icc,
                   const RunControl &control);

} // namespace imageio
