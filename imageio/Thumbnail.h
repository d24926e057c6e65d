#pragma once

#include "contracts/ImageFileBackend.h"

namespace imageio {

/// A copy of at most `side` pixels on its longest side, averaged over areas, 8-bit sRGB; a smaller
/// picture keeps its size. With 3 channels a picture with alpha is laid over white. Null when
/// memory is short.
std::shared_ptr<ImageData> shrinkToSrgb(const ImageData &image, int side, int channels);

WriteResult writeThumbnailOf(const QString &source, const QString &target, int side,
                             const RunControl &control);

} // namespace imageio
