#pragma once

#include "engine/core/FloatTile.h"

/// Smallest and largest sample within `radius` rows and columns; `in` covers low.area grown by it.
void localRange(const PlaneView &in, int radius, const PlaneView &low, const PlaneView &high,
                Scratch &scratch);

/// Mean over a square of side 2 radius + 1; `in` covers out.area grown by the radius.
void boxMean(const PlaneView &in, int radius, const PlaneView &out, Scratch &scratch);
