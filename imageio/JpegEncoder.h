#pragma once

#include "imageio/PixelEncoder.h"

namespace imageio {

/// Writes a JPEG with the codec's own library: the image library's writer ends the process when the
/// disk is full. "compression" is "jpeg:<quality>"; "jpeg:subsampling" is "4:4:4", "4:2:2" or
/// "4:2:0"; "jpeg:progressive" 1 asks for several passes.
Encoded encodeJpeg(const ImageData &image, const EncodePlan &plan, const QString &path,
                   const RunControl &control);

} // namespace imageio
