#pragma once

#include "contracts/ImageData.h"

#include <vector>

namespace imageio {

/// How rows leave an image: depth, and alpha kept or laid over white.
struct RowFormat {
    int bits = 8;
    int channels = 3;
};

/// Rows y to y + rows - 1 in the given format. Answers a pointer into the image itself when that is
/// already so, else into `buffer`.
const std::byte *convertRows(const ImageData &image, int y, int rows, RowFormat to,
                             std::vector<std::byte> &buffer);

/// Divides colour by alpha, for files that store it multiplied in.
void removePremultiplication(ImageData &image, int y, int rows);

} // namespace imageio
