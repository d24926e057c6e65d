#pragma once

#include "imageio/JpegDecoder.h"

#include <optional>

namespace imageio {

/// Decodes the usual kinds of TIFF: 8 or 16 bit grey, RGB or CMYK, interleaved, in strips or tiles.
/// Empty for all other kinds. The image library reads those, but goes on silently after damage.
std::optional<Decoded> decodeTiff(const QString &path, const FileFacts &facts, const QByteArray &icc,
                                  const RunControl &control);

} // namespace imageio
