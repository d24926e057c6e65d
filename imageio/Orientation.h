#pragma once

#include "contracts/ImageData.h"

namespace imageio {

/// Turns a picture upright. `orientation` counts as in EXIF, 1 to 8: where the first stored row and
/// column lie in the upright picture; other values mean 1. Null when memory is short.
std::shared_ptr<ImageData> upright(std::shared_ptr<ImageData> image, int orientation);

/// True when the upright picture has width and height exchanged.
constexpr bool swapsSides(int orientation) {
    return orientation >= 5 && orientation <= 8;
}

} // namespace imageio
