#pragma once

#include "contracts/ImageData.h"
#include "engine/core/FloatTile.h"

#include <QSize>

/// Pixels between stored pictures and float tiles. A stored picture covers the region `covered` of
/// a whole picture of size `full`; areas are in coordinates of the whole picture.
namespace PixelTransfer {

/// Fills the tile's planes; outside the whole picture it is mirrored at its edges. `covered` must
/// hold all that is then needed.
void load(const ImageData &source, const TRect &covered, const QSize &full, FloatTile &tile);

/// Writes the tile rounded to the depth of `target`, clamped; 8 bit is rounded from 16 bit, so
/// that it equals a later conversion of a 16-bit picture.
void store(const FloatTile &tile, ImageData &target, const TRect &covered);

/// Alpha of `area` as it stands in `source`, where both have it.
void copyAlpha(const ImageData &source, const TRect &sourceCovers, ImageData &target,
               const TRect &targetCovers, const TRect &area);

/// The part `area` of `source` in the depth `type`, with its profile; null when memory is short.
std::shared_ptr<ImageData> copied(const ImageData &source, const TRect &covered, const TRect &area,
                                  SampleType type);

} // namespace PixelTransfer
