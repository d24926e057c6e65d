#pragma once

#include "engine/analysis/Planes.h"

#include <stop_token>
#include <vector>

namespace Analysis {

/// Tiles at full resolution spread evenly over the picture, for measurements that want a fair
/// sample. Small pictures are covered whole. Origins lie 4 pixels off the grid of 8 x 8 blocks that
/// compression uses, so that blocks cut from a tile don't coincide with compressed ones.
std::vector<Crop> spreadTiles(const ImageData &image, std::stop_token stop);

/// The tiles with the strongest edges, for measurements of the sharpest part of the picture.
/// Found by looking at every 16th row of the whole picture.
std::vector<Crop> busyTiles(const ImageData &image, std::stop_token stop);

} // namespace Analysis
