#pragma once

#include "engine/analysis/EdgeWidths.h"

#include <stop_token>
#include <vector>

namespace Analysis {

struct MotionFound {
    float length = 0; ///< pixels; 0: no smear
    float angle = 0;  ///< radians in [0, pi), counter-clockwise from the x axis
};

/// A smear takes fine detail in its own direction only. Compares the gradients
/// of the picture, by direction, with those of a reduced copy that the smear
/// hardly touches: a picture may have edges in one direction mainly, but then
/// it has them at both scales. That gives the direction; that edges across it
/// are much wider than edges along it proves the smear and tells its length.
/// `noise` is the deviation of the luma's noise, whose share is taken off.
MotionFound findMotion(const std::vector<Plane> &tiles, const TileEdges &edges, float noise,
                       std::stop_token stop);

} // namespace Analysis
