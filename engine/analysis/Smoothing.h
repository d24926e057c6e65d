#pragma once

#include "engine/analysis/Planes.h"

namespace Analysis {

/// Gaussian smoothing; the border repeats. A sigma of 0 copies.
Plane smoothed(const Plane &plane, float sigma);

/// Half the size in both directions (at least 1), each value the mean of four.
Plane halved(const Plane &plane);
Crop halved(const Crop &crop);

} // namespace Analysis
