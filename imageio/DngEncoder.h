#pragma once

#include "imageio/PixelEncoder.h"

namespace imageio {

/// Writes a linear RGB DNG: 16-bit demosaiced samples with the primaries of sRGB, a neutral white
/// balance and no tone curve, so that a raw developer without adjustments shows the picture as it
/// is. A small preview is in the first directory. Compressed files hold lossless JPEG tiles.
Encoded encodeDng(const ImageData &image, const EncodePlan &plan, const QString &path,
                  const RunControl &control);

} // namespace imageio
