#pragma once

#include "engine/core/FloatTile.h"

/// Steepens edges across their direction and leaves them alone along it, so that jagged or noisy
/// contours get no rougher. The result stays in the range of its neighbourhood.
struct EdgeSharpen {
    float amount = 0; ///< 0 to 1
    int step = 1;     ///< distance of the samples compared, pixels

    int halo() const { return amount > 0 ? step : 0; }

    /// Adds to planes R, G, B over `area`; `luma` covers it grown by the halo.
    void run(const PlaneView &luma, const PlaneView *rgb, const TRect &area, Scratch &scratch) const;
};
