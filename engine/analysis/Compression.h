#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

struct CompressionLevels {
    int quality = 100;    ///< 1 to 100; 100 where no traces are left
    float blockiness = 0; ///< mean step across block borders beyond that elsewhere, 0 to 1 scale
};

/// Traces of JPEG compression on the usual grid (a picture that was cropped or resized afterwards
/// has none). Coefficients of the blocks that gather at multiples of a step give the step away.
CompressionLevels measureCompression(const std::vector<Crop> &tiles, std::stop_token stop);

} // namespace Analysis
