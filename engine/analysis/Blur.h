#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

/// Lengths in pixels.
struct BlurLevels {
    float sigma = 0; ///< Gaussian sigma of the edges in the sharpest part; 0 when there are no edges
    float edgeShare = 0;
};

/// How wide edges are, from how much their gradient falls when the picture is blurred a little more:
/// sharp ones lose much, blurred ones little. After S. Zhuo and T. Sim, "Defocus map estimation from
/// a single image", 2011. `noise` is the deviation of the luma's noise; edges near it are left out.
BlurLevels measureBlur(const std::vector<Crop> &tiles, float noise, std::stop_token stop);

} // namespace Analysis
