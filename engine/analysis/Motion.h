#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

struct MotionFound {
    float length = 0; ///< pixels; 0: no smear
    float angle = 0;  ///< radians in [0, pi), counter-clockwise from the x axis
    float ratio = 1;  ///< how much less fine detail there is along than across, 1 and more
};

/// A smear takes fine detail in its own direction only. Compares the gradients of the picture,
/// by direction, with those of a reduced copy that the smear hardly touches: a picture may have
/// edges in one direction mainly, but then it has them at both scales. `noise` is the deviation of
/// the luma's noise, whose share is taken off.
MotionFound findMotion(const std::vector<Plane> &tiles, float noise, std::stop_token stop);

} // namespace Analysis
