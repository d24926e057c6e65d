#pragma once

#include "engine/analysis/Planes.h"

#include <array>

namespace Analysis {

struct Tones {
    float low = 0; ///< luma that 0.5 % of the pixels lie below
    float median = 0;
    float high = 1; ///< luma that 0.5 % lie above
    float clippedLow = 0;
    float clippedHigh = 0;
};

/// From a small copy of the picture.
Tones measureTones(const Crop &small);

struct Light {
    std::array<float, 3> colour = {1, 1, 1}; ///< linear RGB, green = 1
    float confidence = 0;
};

/// Colour of the light: the mean of three guesses (the average of all colours, that of the brighter
/// ones, that of the edges), trusted as far as they agree and as the picture has colours that turn
/// neutral under it. After J. van de Weijer and others, "Edge-based color constancy", 2007.
Light measureLight(const Crop &small);

} // namespace Analysis
