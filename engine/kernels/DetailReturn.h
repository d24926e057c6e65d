#pragma once

#include "engine/core/FloatTile.h"

/// Brings back what a denoiser took away, where it was texture: where its energy stands out from
/// that of the noise that the picture has.
struct DetailReturn {
    float amount = 0; ///< 0 to 1
    float noise = 0;  ///< deviation of the picture's noise in brightness

    int halo() const { return amount > 0 ? Radius : 0; }

    /// `original` and `clean` hold planes R, G, B and cover `area` grown by the halo.
    void run(const PlaneView *original, const PlaneView *clean, const PlaneView *out, const TRect &area,
             Scratch &scratch) const;

private:
    static constexpr int Radius = 4;
};
