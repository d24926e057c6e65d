#pragma once

#include "engine/analysis/ImageStatistics.h"
#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

/// What the spectrum says about the blur of a picture. Lengths in pixels.
struct BlurShape {
    BlurKind kind = BlurKind::Unknown;
    float sigma = 0;  ///< standard deviation of the Gaussian that fits best, whatever the kind
    float radius = 0; ///< only with BlurKind::Defocus
    float length = 0; ///< only with BlurKind::Motion
    float angle = 0;  ///< of the motion, radians in [0, pi), counter-clockwise from the x axis
};

/// A lens out of focus wipes out the details of certain sizes, a movement those of certain sizes in
/// its direction, and soft blur none more than others: the power of the tiles by frequency is held
/// against that of kernels of all three kinds. `noise` is the deviation of the luma's noise.
BlurShape findBlurShape(const std::vector<Crop> &tiles, float noise, std::stop_token stop);

} // namespace Analysis
