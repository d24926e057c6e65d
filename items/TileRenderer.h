#pragma once

#include "contracts/ImageData.h"
#include "items/TileGrid.h"

#include <QColorSpace>
#include <QImage>

/// The pixels of one tile as the screen wants them: 8-bit, alpha premultiplied, in `display`, each pixel
/// of a reduced level the mean of those it stands for. One pixel of the neighbouring tiles surrounds the
/// tile (the edge's own at the border of the picture), so that smooth scaling shows no seams.
/// Null for an empty picture.
QImage renderTile(const ImageData &image, const TileKey &key, const QColorSpace &display);

inline constexpr int TileBorder = 1;
