#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>

namespace Analysis {

/// Mean power of a picture's blocks of Side x Side pixels by frequency; white noise of deviation s
/// has s * s everywhere.
struct PowerSpectrum {
    static constexpr int Side = 64;
    static constexpr int Half = Side / 2;

    std::vector<float> power; ///< rows of Half + 1 frequencies across, rows above Half stand for negative
                              ///< ones; empty where no block fits

    float at(int u, int v) const { return power[std::size_t(v * (Half + 1) + u)]; }
};

/// Blocks count the less the more contrast they have: one lamp at night must not speak for all.
PowerSpectrum measureSpectrum(const std::vector<Crop> &tiles, std::stop_token stop);

} // namespace Analysis
