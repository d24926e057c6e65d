#pragma once

#include "engine/core/FloatTile.h"

/// Holds a sharpened picture near the range that the original has around each pixel, so that edges get
/// no halos where more blur is taken back than there was.
struct RangeLimit {
    float beyond = -1; ///< share of that range by which it may be left; below 0: as far as it likes

    int halo() const { return beyond >= 0 ? Radius : 0; }

    /// Changes planes R, G, B of `sharp` over `area`; `original` covers it grown by the halo.
    void run(const PlaneView *original, const PlaneView *sharp, const TRect &area, Scratch &scratch) const;

private:
    static constexpr int Radius = 3;
};
