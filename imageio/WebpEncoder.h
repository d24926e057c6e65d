#pragma once

#include "imageio/PixelEncoder.h"

namespace imageio {

/// Writes a WebP with the codec's own library: the image library always takes its slowest method
/// (half a minute for 24 megapixels) and can't be cancelled. "compression" is "webp:<quality>" or
/// "lossless". Profile and resolution come with the metadata.
Encoded encodeWebp(const ImageData &image, const EncodePlan &plan, const QString &path,
                   const RunControl &control);

} // namespace imageio
