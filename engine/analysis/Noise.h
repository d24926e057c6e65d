#pragma once

#include "engine/analysis/Planes.h"

#include <array>
#include <stop_token>
#include <vector>

namespace Analysis {

/// Standard deviations on the 0 to 1 scale, of the noise as it stands in flat areas.
struct NoiseLevels {
    std::array<float, 3> rgb = {};
    float luma = 0;
    float chroma = 0;
    float grainSize = 0; ///< sigma of a Gaussian that would correlate white noise like this
    float blotches = 0;  ///< coarse colour noise, which the blocks of the other figures are too small to hold
};

/// Measures in the flattest 8 x 8 blocks of the tiles, on their cosine transform: blocks are chosen
/// by their low frequencies and measured at the high ones, which noise fills evenly and independently.
/// After N. Ponomarenko and others, "An automatic approach to lossy compression of AVIRIS images", 2007.
NoiseLevels measureNoise(const std::vector<Crop> &tiles, std::stop_token stop);

} // namespace Analysis
