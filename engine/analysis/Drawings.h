#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

/// How far a picture is a drawing and no photograph: of the pixels beside strong edges the share, 0 to 1,
/// that lies in areas of exactly one colour. In photographs light, lenses and sensors leave next to none
/// there. Black and white count only beyond a half, since a burnt-out background has them, too. 0 without
/// such edges.
float measureDrawing(const std::vector<Crop> &tiles, std::stop_token stop);

} // namespace Analysis
