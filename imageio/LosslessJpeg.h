#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace imageio {

/// Encodes 16-bit RGB samples as a lossless JPEG (ITU-T T.81, process 14, first predictor) with one
/// Huffman table fitted to the data. `stride` counts samples from row to row.
std::vector<std::uint8_t> encodeLosslessJpeg(const std::uint16_t *samples, int width, int height,
                                             std::size_t stride);

} // namespace imageio
