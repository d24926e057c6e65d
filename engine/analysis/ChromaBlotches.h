#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

/// Standard deviation, over R, G and B less the luma, of colour noise in spots some pixels wide, as high
/// sensitivities and smoothing leave it. `chroma` is what was found of fine colour noise: root mean square of
/// R - luma and B - luma. Sees spots of a Gaussian sigma of 1 to 4 pixels, their strength to a third or so.
float measureBlotches(const std::vector<Crop> &tiles, float chroma, std::stop_token stop);

} // namespace Analysis
